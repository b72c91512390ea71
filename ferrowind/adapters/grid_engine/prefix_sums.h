#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace ferrowind::grid_engine {

/// A list of sizes whose sums from the front are kept up to date in logarithmic time.
class PrefixSums {
 public:
  PrefixSums() = default;
  explicit PrefixSums(std::span<const std::uint32_t> sizes);

  /// Adds `difference` to the size at `index`; sums wrap around, so a negative difference is its two's
  /// complement.
  void Add(std::size_t index, std::uint32_t difference);
  /// The sum of the sizes before `index`.
  [[nodiscard]] std::uint32_t SumBefore(std::size_t index) const;
  /// The greatest index whose `SumBefore` is at most `offset`. Precondition: `offset` is less than the sum of
  /// all sizes, and no size is 0.
  [[nodiscard]] std::size_t IndexAt(std::uint32_t offset) const;

 private:
  /// A binary indexed tree: `sums_[i]` holds the sizes of the (i + 1) & -(i + 1) indices that end at i.
  std::vector<std::uint32_t> sums_;
};

}  // namespace ferrowind::grid_engine
