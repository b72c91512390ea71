#include "ferrowind/adapters/postgres/binary_value.h"

#include <algorithm>
#include <cstdint>

namespace ferrowind::postgres {

std::vector<std::string> ReadArray(const char* bytes, std::size_t size) {
  // The number of dimensions, whether there are nulls, the type of the elements; then, for the one dimension,
  // how many elements and the first one's index; then each element's size, -1 for null, and its bytes.
  constexpr std::size_t kHeader = 5 * sizeof(std::int32_t);
  std::vector<std::string> elements;
  for (std::size_t at = kHeader; at + sizeof(std::int32_t) <= size;) {
    const auto length = ReadNumber<std::int32_t>(bytes + at);
    at += sizeof(std::int32_t);
    elements.emplace_back();
    if (length <= 0) continue;
    const std::size_t taken = std::min(static_cast<std::size_t>(length), size - at);
    elements.back().assign(bytes + at, taken);
    at += taken;
  }
  return elements;
}

}  // namespace ferrowind::postgres
