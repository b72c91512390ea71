#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "ferrowind/adapters/content/content_source.h"

namespace ferrowind::content {

/// The position, counted from 1, of the first row of `table` that the two do not have alike; nothing when
/// their rows are equal. `seen` is called behind each row that is. A whole number is the same in any width;
/// nothing and an empty text differ.
[[nodiscard]] std::optional<std::int64_t> FirstDifference(Source& left, Source& right, const Table& table,
                                                          const std::function<void()>& seen = {});

}  // namespace ferrowind::content
