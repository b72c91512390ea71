#pragma once

#include <cstdint>
#include <functional>
#include <utility>

#include "ferrowind/adapters/grid_content/stored_columns.h"
#include "ferrowind/adapters/grid_content/stored_key_list.h"

namespace ferrowind::grid_content {

/// What the operator does to the keys of a grid. Columns are 1-based indices, positions 1-based among the
/// group keys. What makes no sense now (a position that is none, a column that cannot be grouped by) does
/// nothing.
class GridOperations {
 public:
  struct Surroundings {
    /// Shows the keys of now.
    std::function<void()> refresh;
    std::function<void()> before_group_change;
    std::function<void()> after_group_change;
  };

  /// All outlive the operations.
  GridOperations(const StoredColumns& columns, StoredKeyList& sort_keys, StoredKeyList& group_keys,
                 Surroundings surroundings)
      : columns_(columns),
        sort_keys_(sort_keys),
        group_keys_(group_keys),
        surroundings_(std::move(surroundings)) {}

  /// Makes the column the only sort key, or with `kSortNone` drops its key.
  void Sort(std::int16_t column, std::int32_t sort_order);
  /// Adds the column behind the other sort keys, or turns the order that it has among them.
  void AddToSort(std::int16_t column);

  [[nodiscard]] bool CanGroupBy(std::int16_t column) const;
  /// Groups by the column too: at that position, or innermost when it is 0. A column that is grouped by moves
  /// there.
  void GroupBy(std::int16_t column, std::int32_t position);
  void Ungroup(std::int32_t position);
  void MoveGroup(std::int32_t from, std::int32_t to);
  void TurnGroupOrder(std::int32_t position);

 private:
  void ChangeGroups(const std::function<void()>& change);
  [[nodiscard]] bool IsGroupPosition(std::int32_t position) const;

  const StoredColumns& columns_;
  StoredKeyList& sort_keys_;
  StoredKeyList& group_keys_;
  Surroundings surroundings_;
};

}  // namespace ferrowind::grid_content
