#include "ferrowind/adapters/grid_engine/prefix_sums.h"

#include <bit>

namespace ferrowind::grid_engine {

PrefixSums::PrefixSums(std::span<const std::uint32_t> sizes) : sums_(sizes.begin(), sizes.end()) {
  for (std::size_t i = 1; i <= sums_.size(); ++i) {
    const std::size_t next = i + (i & (~i + 1));
    if (next <= sums_.size()) sums_[next - 1] += sums_[i - 1];
  }
}

void PrefixSums::Add(std::size_t index, std::uint32_t difference) {
  for (std::size_t i = index + 1; i <= sums_.size(); i += i & (~i + 1)) sums_[i - 1] += difference;
}

std::uint32_t PrefixSums::SumBefore(std::size_t index) const {
  std::uint32_t sum = 0;
  for (std::size_t i = index; i > 0; i -= i & (~i + 1)) sum += sums_[i - 1];
  return sum;
}

std::size_t PrefixSums::IndexAt(std::uint32_t offset) const {
  std::size_t index = 0;
  for (std::size_t step = std::bit_floor(sums_.size()); step > 0; step /= 2) {
    if (index + step <= sums_.size() && sums_[index + step - 1] <= offset) {
      index += step;
      offset -= sums_[index - 1];
    }
  }
  return index;
}

}  // namespace ferrowind::grid_engine
