#pragma once

#include <cstddef>
#include <string_view>

namespace ferrowind::sqlite {

/// Where `wanted` begins in `text`, or `npos`, by an algorithm whose steps do not multiply.
[[nodiscard]] std::size_t Find(std::string_view text, std::string_view wanted) noexcept;

}  // namespace ferrowind::sqlite
