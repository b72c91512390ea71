#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "ferrowind/adapters/grid_engine/key_values.h"

namespace ferrowind::grid_content {

/// The values of computed cells that were asked for, each computed once.
///
/// They are kept in pages that come to be as they are needed: a grid of a million rows shows a few hundred.
class ComputedCells {
 public:
  using Compute =
      std::function<void(grid_engine::Record record, std::int16_t column, platform::Value& receiver)>;

  explicit ComputedCells(Compute compute) : compute_(std::move(compute)) {}

  /// The value stays where it is until it is forgotten.
  [[nodiscard]] const platform::Value& ValueOf(grid_engine::Record record, std::int16_t column) const;
  void Forget() { columns_.clear(); }

 private:
  static constexpr std::uint32_t kPageSize = 256;
  struct Page {
    std::array<platform::Value, kPageSize> values;
    std::bitset<kPageSize> is_known;
  };

  Compute compute_;
  mutable std::map<std::int16_t, std::vector<std::unique_ptr<Page>>> columns_;
};

}  // namespace ferrowind::grid_content
