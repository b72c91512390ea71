#pragma once

#include <cstdint>
#include <memory>

#include "ferrowind/export.h"

namespace ferrowind::platform {

///@{
/// How a column is sorted.
inline constexpr std::int32_t kSortAscending = 1;
inline constexpr std::int32_t kSortDescending = -1;
inline constexpr std::int32_t kSortNone = 0;
///@}

/// One sort key or grouping key of a grid. The grid keeps `Index` in step while the key is in its list; a key
/// that the grid has dropped keeps its last values, so that it can be added again.
struct FERROWIND_EXPORT GridKey {
  /// The 1-based index of the column.
  std::int16_t ColIndex = 0;
  /// `kSortAscending`, `kSortDescending` or `kSortNone`.
  std::int32_t SortOrder = kSortNone;
  /// The key's 1-based position in its list.
  std::int16_t Index = 0;
};

/// The sort keys or the grouping keys of a grid, the most significant first. Changes show after
/// `Grid::Refresh`.
class FERROWIND_EXPORT GridKeyList {
 public:
  virtual ~GridKeyList() = default;
  /// How many keys there are, which is the last position.
  [[nodiscard]] virtual std::int32_t Count() const = 0;
  /// The key itself, shared with the grid. Positions count from 1; one outside the list is the failure
  /// Subscript out of range.
  [[nodiscard]] virtual std::shared_ptr<const GridKey> Item(std::int32_t position) const = 0;
  /// Adds a key at that 1-based position, or at the end when the position is 0 or beyond it; a key added
  /// later at a lower position than was asked for still goes before it, so that keys added back last first,
  /// each at its old position, come back in their old order. A column that the grid does not have, or a
  /// negative position, is the failure Subscript out of range; a sort order that is none is the failure
  /// Invalid argument.
  virtual void Add(std::int16_t column_index, std::int32_t sort_order, std::int16_t position) = 0;
  /// Drops all keys.
  virtual void Clear() = 0;
};

}  // namespace ferrowind::platform
