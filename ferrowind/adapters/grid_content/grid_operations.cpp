#include "ferrowind/adapters/grid_content/grid_operations.h"

#include <algorithm>

namespace ferrowind::grid_content {

void GridOperations::Sort(std::int16_t column, std::int32_t sort_order) {
  StoredKeyList& keys = sort_keys_;
  if (sort_order != platform::kSortNone) {
    keys.Clear();
    keys.Add(column, sort_order, 0);
  } else if (const std::int32_t position = keys.PositionOf(column); position > 0) {
    keys.Remove(position);
  }
  surroundings_.refresh();
}

void GridOperations::AddToSort(std::int16_t column) {
  StoredKeyList& keys = sort_keys_;
  if (const std::int32_t position = keys.PositionOf(column); position > 0) {
    const bool is_ascending = keys.OrderOf(column) == platform::kSortAscending;
    keys.SetSortOrder(position, is_ascending ? platform::kSortDescending : platform::kSortAscending);
  } else {
    keys.Add(column, platform::kSortAscending, 0);
  }
  surroundings_.refresh();
}

bool GridOperations::CanGroupBy(std::int16_t column) const {
  return column >= 1 && column <= columns_.Count() && columns_[column].IsGroupable();
}

bool GridOperations::IsGroupPosition(std::int32_t position) const {
  return position >= 1 && position <= group_keys_.Count();
}

void GridOperations::GroupBy(std::int16_t column, std::int32_t position) {
  if (!CanGroupBy(column)) return;
  StoredKeyList& keys = group_keys_;
  if (const std::int32_t from = keys.PositionOf(column); from > 0) {
    const std::int32_t to = position == 0 ? keys.Count() : position;
    MoveGroup(from, std::min(to > from && position != 0 ? to - 1 : to, keys.Count()));
    return;
  }
  ChangeGroups([&] { keys.Add(column, platform::kSortAscending, static_cast<std::int16_t>(position)); });
}

void GridOperations::Ungroup(std::int32_t position) {
  if (!IsGroupPosition(position)) return;
  ChangeGroups([&] { group_keys_.Remove(position); });
}

void GridOperations::MoveGroup(std::int32_t from, std::int32_t to) {
  if (from == to || !IsGroupPosition(from) || !IsGroupPosition(to)) return;
  ChangeGroups([&] { group_keys_.Move(from, to); });
}

void GridOperations::TurnGroupOrder(std::int32_t position) {
  if (!IsGroupPosition(position)) return;
  const bool is_ascending = group_keys_.Item(position)->SortOrder == platform::kSortAscending;
  ChangeGroups([&] {
    group_keys_.SetSortOrder(position, is_ascending ? platform::kSortDescending : platform::kSortAscending);
  });
}

void GridOperations::ChangeGroups(const std::function<void()>& change) {
  surroundings_.before_group_change();
  change();
  surroundings_.after_group_change();
}

}  // namespace ferrowind::grid_content
