#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace ferrowind::chain {

/// The first 5 * `count` bits as letters and digits that nobody mistakes for each other when they are written
/// down or read out: no I, L, O and U.
[[nodiscard]] std::string LettersOf(const std::array<std::uint8_t, 32>& bits, std::size_t count);

/// The letters of `text` as `LettersOf` writes them, without blanks and dashes: capital ones, and the digits
/// that I, L and O look like. Empty when anything else is in it.
[[nodiscard]] std::string ReadLetters(std::string_view text);

}  // namespace ferrowind::chain
