#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "ferrowind/adapters/grid_engine/key_codes.h"

namespace ferrowind::grid_engine {

/// One key of a sort.
struct SortKey {
  const KeyCodes* codes = nullptr;
  bool is_descending = false;
};

/// The records in the order of the keys, the most significant key first; records that are alike in all keys
/// keep the order of their numbers. Without keys that order alone.
[[nodiscard]] std::vector<Record> SortRecords(std::uint32_t record_count, std::span<const SortKey> keys);

/// The positions of `numbers` in the order of the numbers; equal ones keep their order.
[[nodiscard]] std::vector<std::uint32_t> OrderOf(std::span<const std::uint64_t> numbers);

}  // namespace ferrowind::grid_engine
