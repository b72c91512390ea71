#pragma once

#include <compare>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/export.h"

namespace ferrowind::platform {

/// `text` with its letters folded to lower case, so that two texts that differ in letter case alone fold to
/// the same text. UTF-8; folds the Latin, Greek and Cyrillic letters of U+0041 to U+052F one to one. Bytes
/// that are no UTF-8 stay as they are.
[[nodiscard]] FERROWIND_EXPORT std::string FoldCase(std::string_view text);

/// Orders two texts as the bytes of `FoldCase(left)` and `FoldCase(right)` are ordered; allocates nothing.
[[nodiscard]] FERROWIND_EXPORT std::strong_ordering CompareIgnoringCase(std::string_view left,
                                                                        std::string_view right);

/// The position of the first of `texts` that equals `wanted` but for letter case, or nothing.
[[nodiscard]] FERROWIND_EXPORT std::optional<std::size_t> FindIgnoringCase(
    const std::vector<std::string>& texts, std::string_view wanted);

}  // namespace ferrowind::platform
