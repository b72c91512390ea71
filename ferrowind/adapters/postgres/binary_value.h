#pragma once

#include <cstddef>
#include <string>
#include <type_traits>
#include <vector>

namespace ferrowind::postgres {

/// A whole number as the server's binary format has it: the most significant byte first.
template <typename Number>
[[nodiscard]] Number ReadNumber(const char* bytes) {
  std::make_unsigned_t<Number> number = 0;
  for (std::size_t i = 0; i < sizeof(Number); ++i) {
    number = static_cast<std::make_unsigned_t<Number>>(number << 8 | static_cast<unsigned char>(bytes[i]));
  }
  return static_cast<Number>(number);
}

/// The elements of an array of one dimension in the server's binary format, each in its own binary format; a
/// null element is empty. `size` is the number of bytes; none for no array at all.
[[nodiscard]] std::vector<std::string> ReadArray(const char* bytes, std::size_t size);

}  // namespace ferrowind::postgres
