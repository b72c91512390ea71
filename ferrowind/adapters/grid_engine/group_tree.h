#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "ferrowind/adapters/grid_engine/key_values.h"
#include "ferrowind/adapters/grid_engine/prefix_sums.h"

namespace ferrowind::grid_engine {

/// Names a group as long as the tree is not built anew: its level, 0 the outermost, and its number among the
/// groups of that level in the order of rows.
struct GroupId {
  std::uint32_t level = 0;
  std::uint32_t number = 0;
  friend bool operator==(const GroupId&, const GroupId&) = default;
};

/// What stands in a visible row.
struct VisibleRow {
  bool is_group = false;
  /// The group of a group row.
  GroupId group;
  /// The place of a data row in the sort order.
  std::uint32_t position = 0;
};

/// The groups over a sort order, and the rows that are visible while some of them are collapsed.
///
/// Nothing is stored per visible row: a row is found by descending the levels, so that expanding a group
/// costs the same whether ten rows come to light or a million.
class GroupTree {
 public:
  GroupTree() = default;
  /// `order` is the sort order, `level_codes` a code per record for each level, the outermost first; records
  /// of one group stand together in `order`. All groups are expanded.
  GroupTree(std::span<const Record> order, const std::vector<const std::vector<std::uint32_t>*>& level_codes);

  [[nodiscard]] std::uint32_t LevelCount() const { return static_cast<std::uint32_t>(levels_.size()); }
  /// The number of groups of a level.
  [[nodiscard]] std::uint32_t GroupCount(std::uint32_t level) const;
  [[nodiscard]] std::uint32_t RowCount() const { return row_count_; }
  /// Precondition: `row < RowCount()`. Rows count from 0.
  [[nodiscard]] VisibleRow RowAt(std::uint32_t row) const;

  /// The row of a group or of the place in the sort order; nothing while a group that it is in is collapsed.
  [[nodiscard]] std::optional<std::uint32_t> RowOf(GroupId group) const;
  [[nodiscard]] std::optional<std::uint32_t> RowOfPosition(std::uint32_t position) const;
  /// The group of that level that the place in the sort order is in.
  [[nodiscard]] GroupId GroupOfPosition(std::uint32_t position, std::uint32_t level) const;
  /// Precondition: `group.level > 0`.
  [[nodiscard]] GroupId ParentOf(GroupId group) const;
  /// The numbers of the groups directly in `group`, one level further in, as a range; none for one of the
  /// last level.
  struct Range {
    std::uint32_t first = 0;
    std::uint32_t end = 0;
  };
  [[nodiscard]] Range ChildrenOf(GroupId group) const;
  /// The places in the sort order of the records in `group`.
  [[nodiscard]] Range PositionsOf(GroupId group) const;
  /// The rows that `group` has, or would have, below its own while it is expanded.
  [[nodiscard]] std::uint32_t RowsWithin(GroupId group) const;

  [[nodiscard]] bool IsExpanded(GroupId group) const;
  void SetExpanded(GroupId group, bool is_expanded);
  /// Sets many at once: `Assign` as often as needed, then `Recount`.
  void Assign(GroupId group, bool is_expanded);
  void AssignAll(bool is_expanded);
  void Recount();

 private:
  struct Level {
    /// Of each group the place of its first record; a last entry holds the number of records.
    std::vector<std::uint32_t> first_positions;
    /// Of each group the number of its first child in the next level; a last entry holds the count of those.
    std::vector<std::uint32_t> first_children;
    std::vector<std::uint32_t> parents;
    std::vector<unsigned char> expanded;
    /// Of each group the rows it takes while the groups around it are expanded.
    PrefixSums sizes;
  };

  std::vector<Level> levels_;
  std::uint32_t record_count_ = 0;
  std::uint32_t row_count_ = 0;
};

}  // namespace ferrowind::grid_engine
