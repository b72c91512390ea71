#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace ferrowind::chain {

/// The SHA-256 digest of `bytes`. A `platform::Failure` when the library for it refuses, which it may for
/// want of memory.
[[nodiscard]] std::array<std::uint8_t, 32> Sha256(std::string_view bytes);

/// As 64 hexadecimal digits with small letters.
[[nodiscard]] std::string Sha256Text(std::string_view bytes);

}  // namespace ferrowind::chain
