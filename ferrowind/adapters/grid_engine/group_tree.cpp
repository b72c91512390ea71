#include "ferrowind/adapters/grid_engine/group_tree.h"

#include <algorithm>

namespace ferrowind::grid_engine {

GroupTree::GroupTree(std::span<const Record> order,
                     const std::vector<const std::vector<std::uint32_t>*>& level_codes)
    : levels_(level_codes.size()), record_count_(static_cast<std::uint32_t>(order.size())) {
  for (std::uint32_t position = 0; position < record_count_; ++position) {
    bool begins_group = position == 0;
    for (std::size_t l = 0; l < levels_.size(); ++l) {
      const std::vector<std::uint32_t>& codes = *level_codes[l];
      begins_group = begins_group || codes[order[position]] != codes[order[position - 1]];
      if (!begins_group) continue;
      Level& level = levels_[l];
      level.first_positions.push_back(position);
      if (l > 0) {
        level.parents.push_back(static_cast<std::uint32_t>(levels_[l - 1].first_positions.size()) - 1);
      }
      if (l + 1 < levels_.size()) {
        level.first_children.push_back(static_cast<std::uint32_t>(levels_[l + 1].first_positions.size()));
      }
    }
  }
  for (std::size_t l = 0; l < levels_.size(); ++l) {
    Level& level = levels_[l];
    level.expanded.assign(level.first_positions.size(), 1);
    level.first_positions.push_back(record_count_);
    if (l + 1 < levels_.size()) {
      level.first_children.push_back(static_cast<std::uint32_t>(levels_[l + 1].first_positions.size()));
    }
  }
  Recount();
}

std::uint32_t GroupTree::GroupCount(std::uint32_t level) const {
  return static_cast<std::uint32_t>(levels_[level].expanded.size());
}

VisibleRow GroupTree::RowAt(std::uint32_t row) const {
  // The row within the current level's siblings, which begin at `first_sibling`.
  std::uint32_t offset = row;
  std::uint32_t first_sibling = 0;
  for (std::uint32_t l = 0; l < LevelCount(); ++l) {
    const Level& level = levels_[l];
    const std::uint32_t base = level.sizes.SumBefore(first_sibling);
    const auto number = static_cast<std::uint32_t>(level.sizes.IndexAt(base + offset));
    offset = base + offset - level.sizes.SumBefore(number);
    if (offset == 0) return {true, {l, number}, 0};
    --offset;
    if (l + 1 == LevelCount()) return {false, {}, level.first_positions[number] + offset};
    first_sibling = level.first_children[number];
  }
  return {false, {}, row};
}

std::optional<std::uint32_t> GroupTree::RowOf(GroupId group) const {
  std::uint32_t row = 0;
  for (GroupId at = group;; at = ParentOf(at)) {
    const Level& level = levels_[at.level];
    if (at.level == 0) return row + level.sizes.SumBefore(at.number);
    const GroupId parent = ParentOf(at);
    if (!IsExpanded(parent)) return std::nullopt;
    const std::uint32_t first_sibling = ChildrenOf(parent).first;
    row += 1 + level.sizes.SumBefore(at.number) - level.sizes.SumBefore(first_sibling);
  }
}

std::optional<std::uint32_t> GroupTree::RowOfPosition(std::uint32_t position) const {
  if (levels_.empty()) return position;
  const GroupId group = GroupOfPosition(position, LevelCount() - 1);
  const std::optional<std::uint32_t> row = RowOf(group);
  if (!row || !IsExpanded(group)) return std::nullopt;
  return *row + 1 + position - levels_.back().first_positions[group.number];
}

GroupId GroupTree::GroupOfPosition(std::uint32_t position, std::uint32_t level) const {
  const std::vector<std::uint32_t>& firsts = levels_[level].first_positions;
  const auto after = std::upper_bound(firsts.begin(), firsts.end() - 1, position);
  return {level, static_cast<std::uint32_t>(after - firsts.begin()) - 1};
}

GroupId GroupTree::ParentOf(GroupId group) const {
  return {group.level - 1, levels_[group.level].parents[group.number]};
}

GroupTree::Range GroupTree::ChildrenOf(GroupId group) const {
  const std::vector<std::uint32_t>& firsts = levels_[group.level].first_children;
  if (firsts.empty()) return {};
  return {firsts[group.number], firsts[group.number + 1]};
}

GroupTree::Range GroupTree::PositionsOf(GroupId group) const {
  const std::vector<std::uint32_t>& firsts = levels_[group.level].first_positions;
  return {firsts[group.number], firsts[group.number + 1]};
}

std::uint32_t GroupTree::RowsWithin(GroupId group) const {
  if (group.level + 1 == LevelCount()) {
    const Range positions = PositionsOf(group);
    return positions.end - positions.first;
  }
  const Range children = ChildrenOf(group);
  const PrefixSums& sizes = levels_[group.level + 1].sizes;
  return sizes.SumBefore(children.end) - sizes.SumBefore(children.first);
}

bool GroupTree::IsExpanded(GroupId group) const { return levels_[group.level].expanded[group.number] != 0; }

void GroupTree::SetExpanded(GroupId group, bool is_expanded) {
  if (IsExpanded(group) == is_expanded) return;
  Assign(group, is_expanded);
  const std::uint32_t rows = RowsWithin(group);
  const std::uint32_t difference = is_expanded ? rows : 0U - rows;
  for (GroupId at = group;; at = ParentOf(at)) {
    levels_[at.level].sizes.Add(at.number, difference);
    if (at.level == 0) break;
    // What is inside a collapsed group changes nothing around it.
    if (!IsExpanded(ParentOf(at))) return;
  }
  row_count_ += difference;
}

void GroupTree::Assign(GroupId group, bool is_expanded) {
  levels_[group.level].expanded[group.number] = is_expanded ? 1 : 0;
}

void GroupTree::AssignAll(bool is_expanded) {
  for (Level& level : levels_) {
    std::fill(level.expanded.begin(), level.expanded.end(), static_cast<unsigned char>(is_expanded ? 1 : 0));
  }
}

void GroupTree::Recount() {
  row_count_ = record_count_;
  for (std::uint32_t l = LevelCount(); l-- > 0;) {
    std::vector<std::uint32_t> sizes(GroupCount(l));
    row_count_ = 0;
    for (std::uint32_t number = 0; number < sizes.size(); ++number) {
      sizes[number] = 1 + (IsExpanded({l, number}) ? RowsWithin({l, number}) : 0);
      row_count_ += sizes[number];
    }
    levels_[l].sizes = PrefixSums(sizes);
  }
}

}  // namespace ferrowind::grid_engine
