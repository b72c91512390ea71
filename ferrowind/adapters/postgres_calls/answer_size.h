#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::postgres {

/// What all that a server answers to one call may take. Whatever answers in the place of a server may never
/// end.
inline constexpr std::size_t kMostBytesOfAnAnswer = std::size_t{512} * 1024 * 1024;

/// That `database`, which begins the sentence, answered with more; told by `reporter`.
[[nodiscard]] platform::Failure TooLargeAnswer(const std::string& database,
                                               std::string_view reporter = "PostgreSQL");

}  // namespace ferrowind::postgres
