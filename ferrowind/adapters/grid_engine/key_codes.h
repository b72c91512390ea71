#pragma once

#include <cstdint>
#include <vector>

#include "ferrowind/adapters/grid_engine/key_values.h"

namespace ferrowind::grid_engine {

/// The values of one column as integers that keep their order: a record's code is less than, equal to or
/// greater than another's as `CompareValues` says of their values.
struct KeyCodes {
  /// One for each record.
  std::vector<std::uint32_t> codes;
  /// Every code is less than this.
  std::uint32_t limit = 1;
};

/// Reads the column once, from the first record to the last.
[[nodiscard]] KeyCodes CodesOfColumn(const KeyValues& values, std::int16_t column,
                                     std::uint32_t record_count);

}  // namespace ferrowind::grid_engine
