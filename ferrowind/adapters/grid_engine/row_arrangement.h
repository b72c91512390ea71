#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <vector>

#include "ferrowind/adapters/grid_engine/expansion_memory.h"
#include "ferrowind/adapters/grid_engine/group_tree.h"
#include "ferrowind/adapters/grid_engine/key_codes.h"

namespace ferrowind::grid_engine {

enum class KeyDirection {
  kAscending,
  kDescending,
  /// Groups in the order in which the records first name them; a sort key without a direction does not sort.
  kNone,
};

struct ArrangementKey {
  std::int16_t column = 0;
  KeyDirection direction = KeyDirection::kAscending;
};

/// The visible rows of a grid: its records sorted by keys and put under the rows of their groups.
///
/// Rows, records and positions count from 0. Which groups are expanded is remembered by their paths: it
/// survives other keys, another order and other records. All are expanded at first.
class RowArrangement {
 public:
  /// `values` must outlive the arrangement.
  explicit RowArrangement(const KeyValues& values) : values_(values) {}

  /// Takes other records, all of them, in their own order and without groups.
  void SetRecords(std::uint32_t record_count);
  /// Leaves out the records for which `shows`, asked once of each, is false; an empty function leaves out
  /// none. What sorts and groups the records stays.
  void ShowOnly(const std::function<bool(Record)>& shows);
  /// The values of a column have changed: they are read anew by the next `Arrange`.
  void ForgetColumn(std::int16_t column) { forgotten_.insert(column); }
  /// Sorts and groups by those keys, the most significant first. Records that are alike in all keys keep
  /// their order.
  void Arrange(std::span<const ArrangementKey> groups, std::span<const ArrangementKey> sorts);

  /// Those that are left out among them.
  [[nodiscard]] std::uint32_t RecordCount() const { return record_count_; }
  [[nodiscard]] std::uint32_t RowCount() const { return tree_.RowCount(); }
  [[nodiscard]] const GroupTree& Groups() const { return tree_; }
  [[nodiscard]] VisibleRow RowAt(std::uint32_t row) const { return tree_.RowAt(row); }
  [[nodiscard]] Record RecordAt(std::uint32_t position) const { return order_[position]; }

  /// The record's row; nothing while it is left out or a collapsed group hides it.
  [[nodiscard]] std::optional<std::uint32_t> RowOfRecord(Record record) const;
  /// The record's row, or that of the outermost collapsed group that hides it; nothing while it is left out.
  [[nodiscard]] std::optional<std::uint32_t> RowShowing(Record record) const;
  /// The group of that path, if there is one now.
  [[nodiscard]] std::optional<GroupId> GroupOf(const GroupPath& path) const;
  [[nodiscard]] GroupPath PathOf(GroupId group) const;
  [[nodiscard]] std::int16_t GroupColumn(std::uint32_t level) const { return group_keys_[level].column; }
  /// The key value that the records of the group have in common.
  [[nodiscard]] const platform::Value& GroupValue(GroupId group) const;
  [[nodiscard]] Record FirstRecordOf(GroupId group) const;
  [[nodiscard]] std::uint32_t RecordCountOf(GroupId group) const;

  void SetExpanded(GroupId group, bool is_expanded);
  void SetAllExpanded(bool is_expanded);
  /// Expands these groups, all groups in them and those they are in.
  void ExpandAround(std::span<const GroupId> groups);

 private:
  /// The code of each record, for each level of groups.
  using LevelCodes = std::vector<const std::vector<std::uint32_t>*>;

  [[nodiscard]] const KeyCodes& CodesOf(std::int16_t column);
  /// Puts the records of the sort order that are shown under their groups.
  void Group(const LevelCodes& level_codes);
  [[nodiscard]] LevelCodes CodesOfLevels() const;
  void RestoreExpansion();
  /// The record's place in `order_`; nothing while it is left out.
  [[nodiscard]] std::optional<std::uint32_t> PositionOf(Record record) const;

  const KeyValues& values_;
  std::map<std::int16_t, KeyCodes> codes_;
  std::set<std::int16_t> forgotten_;
  std::vector<ArrangementKey> group_keys_;
  /// For each level whose groups have no order of their own, codes in the order of meeting; else none.
  std::vector<std::unique_ptr<KeyCodes>> meeting_codes_;
  std::uint32_t record_count_ = 0;
  /// Which records are shown; empty for all.
  std::vector<bool> shown_;
  /// All records in the sort order, while some are left out.
  std::vector<Record> sorted_;
  /// The shown ones in the sort order.
  std::vector<Record> order_;
  /// The places of the records in `order_`; made when first asked for.
  mutable std::vector<std::uint32_t> positions_;
  GroupTree tree_;
  ExpansionMemory memory_;
};

}  // namespace ferrowind::grid_engine
