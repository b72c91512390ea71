#include "ferrowind/adapters/grid_engine/row_arrangement.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <numeric>

#include "ferrowind/adapters/grid_engine/record_sort.h"
#include "ferrowind/adapters/grid_engine/value_order.h"

namespace ferrowind::grid_engine {

namespace {

/// The place of a record that has none.
constexpr std::uint32_t kLeftOut = std::numeric_limits<std::uint32_t>::max();

/// The same codes renumbered in the order in which the records first show them.
KeyCodes InOrderOfMeeting(const KeyCodes& sorted) {
  constexpr std::uint32_t kNotMet = std::numeric_limits<std::uint32_t>::max();
  std::vector<std::uint32_t> renumbered(sorted.limit, kNotMet);
  KeyCodes met{{}, 0};
  met.codes.reserve(sorted.codes.size());
  for (const std::uint32_t code : sorted.codes) {
    if (renumbered[code] == kNotMet) renumbered[code] = met.limit++;
    met.codes.push_back(renumbered[code]);
  }
  met.limit = std::max<std::uint32_t>(met.limit, 1);
  return met;
}

}  // namespace

void RowArrangement::SetRecords(std::uint32_t record_count) {
  codes_.clear();
  forgotten_.clear();
  group_keys_.clear();
  meeting_codes_.clear();
  record_count_ = record_count;
  shown_.clear();
  sorted_.clear();
  order_.resize(record_count);
  std::iota(order_.begin(), order_.end(), Record{0});
  Group({});
}

void RowArrangement::ShowOnly(const std::function<bool(Record)>& shows) {
  if (shown_.empty() && shows) sorted_ = std::move(order_);
  shown_.clear();
  if (shows) {
    shown_.resize(record_count_);
    for (Record record = 0; record < record_count_; ++record) shown_[record] = shows(record);
  } else if (!sorted_.empty()) {
    order_ = std::move(sorted_);
    sorted_.clear();
  }
  Group(CodesOfLevels());
}

const KeyCodes& RowArrangement::CodesOf(std::int16_t column) {
  const auto known = codes_.find(column);
  if (known != codes_.end()) return known->second;
  return codes_.emplace(column, CodesOfColumn(values_, column, record_count_)).first->second;
}

void RowArrangement::Arrange(std::span<const ArrangementKey> groups, std::span<const ArrangementKey> sorts) {
  for (const std::int16_t column : forgotten_) codes_.erase(column);
  forgotten_.clear();
  std::vector<SortKey> sort_keys;
  meeting_codes_.clear();
  for (const ArrangementKey& key : groups) {
    const KeyCodes* codes = &CodesOf(key.column);
    meeting_codes_.emplace_back();
    if (key.direction == KeyDirection::kNone) {
      codes = (meeting_codes_.back() = std::make_unique<KeyCodes>(InOrderOfMeeting(*codes))).get();
    }
    sort_keys.push_back({codes, key.direction == KeyDirection::kDescending});
  }
  for (const ArrangementKey& key : sorts) {
    if (key.direction == KeyDirection::kNone) continue;
    sort_keys.push_back({&CodesOf(key.column), key.direction == KeyDirection::kDescending});
  }
  (shown_.empty() ? order_ : sorted_) = SortRecords(record_count_, sort_keys);
  group_keys_.assign(groups.begin(), groups.end());
  Group(CodesOfLevels());
  // Codes of columns that are no keys any more would only hold memory.
  std::erase_if(codes_, [&](const auto& entry) {
    const auto is_column = [&](const ArrangementKey& key) { return key.column == entry.first; };
    return std::none_of(groups.begin(), groups.end(), is_column) &&
           std::none_of(sorts.begin(), sorts.end(), is_column);
  });
}

RowArrangement::LevelCodes RowArrangement::CodesOfLevels() const {
  LevelCodes codes;
  for (std::size_t level = 0; level < group_keys_.size(); ++level) {
    const auto& by_meeting = meeting_codes_[level];
    codes.push_back(by_meeting ? &by_meeting->codes : &codes_.at(group_keys_[level].column).codes);
  }
  return codes;
}

void RowArrangement::Group(const LevelCodes& level_codes) {
  if (!shown_.empty()) {
    order_.clear();
    std::copy_if(sorted_.begin(), sorted_.end(), std::back_inserter(order_),
                 [this](Record record) { return shown_[record]; });
  }
  positions_.clear();
  tree_ = GroupTree(order_, level_codes);
  RestoreExpansion();
}

void RowArrangement::RestoreExpansion() {
  if (tree_.LevelCount() == 0) return;
  const bool by_default = memory_.IsExpandedByDefault();
  if (by_default && memory_.GroupsThatDiffer().empty()) return;
  tree_.AssignAll(by_default);
  for (const GroupPath& path : memory_.GroupsThatDiffer()) {
    if (const auto group = GroupOf(path)) tree_.Assign(*group, !by_default);
  }
  tree_.Recount();
}

std::optional<std::uint32_t> RowArrangement::PositionOf(Record record) const {
  if (positions_.empty() && record < order_.size() && order_[record] == record) return record;
  if (positions_.empty()) {
    positions_.assign(record_count_, kLeftOut);
    for (std::uint32_t position = 0; position < order_.size(); ++position)
      positions_[order_[position]] = position;
  }
  const std::uint32_t position = positions_[record];
  return position == kLeftOut ? std::nullopt : std::optional(position);
}

std::optional<std::uint32_t> RowArrangement::RowOfRecord(Record record) const {
  const auto position = PositionOf(record);
  return position ? tree_.RowOfPosition(*position) : std::nullopt;
}

std::optional<std::uint32_t> RowArrangement::RowShowing(Record record) const {
  const auto position = PositionOf(record);
  if (!position) return std::nullopt;
  if (const auto row = tree_.RowOfPosition(*position)) return row;
  for (std::uint32_t level = 0;; ++level) {
    const GroupId group = tree_.GroupOfPosition(*position, level);
    if (!tree_.IsExpanded(group)) return tree_.RowOf(group).value_or(0);
  }
}

std::optional<GroupId> RowArrangement::GroupOf(const GroupPath& path) const {
  if (path.empty() || path.size() > group_keys_.size()) return std::nullopt;
  GroupTree::Range siblings{0, tree_.GroupCount(0)};
  GroupId group;
  for (std::uint32_t level = 0; level < path.size(); ++level) {
    if (path[level].column != group_keys_[level].column) return std::nullopt;
    const KeyDirection direction = group_keys_[level].direction;
    const auto order_to = [&](std::uint32_t number) {
      const int order = CompareValues(GroupValue({level, number}), path[level].value);
      return direction == KeyDirection::kDescending ? -order : order;
    };
    std::uint32_t number = siblings.first;
    if (direction == KeyDirection::kNone) {
      while (number < siblings.end && order_to(number) != 0) ++number;
    } else {
      std::uint32_t end = siblings.end;
      while (number < end) {
        const std::uint32_t middle = number + (end - number) / 2;
        if (order_to(middle) < 0) {
          number = middle + 1;
        } else {
          end = middle;
        }
      }
    }
    if (number == siblings.end || order_to(number) != 0) return std::nullopt;
    group = {level, number};
    siblings = tree_.ChildrenOf(group);
  }
  return group;
}

GroupPath RowArrangement::PathOf(GroupId group) const {
  GroupPath path;
  for (GroupId at = group;; at = tree_.ParentOf(at)) {
    path.push_back({GroupColumn(at.level), GroupValue(at)});
    if (at.level == 0) break;
  }
  std::reverse(path.begin(), path.end());
  return path;
}

const platform::Value& RowArrangement::GroupValue(GroupId group) const {
  return values_.KeyValue(GroupColumn(group.level), FirstRecordOf(group));
}

Record RowArrangement::FirstRecordOf(GroupId group) const { return order_[tree_.PositionsOf(group).first]; }

std::uint32_t RowArrangement::RecordCountOf(GroupId group) const {
  const GroupTree::Range positions = tree_.PositionsOf(group);
  return positions.end - positions.first;
}

void RowArrangement::SetExpanded(GroupId group, bool is_expanded) {
  memory_.Remember(PathOf(group), is_expanded);
  tree_.SetExpanded(group, is_expanded);
}

void RowArrangement::SetAllExpanded(bool is_expanded) {
  memory_.RememberAll(is_expanded);
  tree_.AssignAll(is_expanded);
  tree_.Recount();
}

void RowArrangement::ExpandAround(std::span<const GroupId> groups) {
  const auto expand = [this](GroupId at) {
    if (tree_.IsExpanded(at)) return;
    memory_.Remember(PathOf(at), true);
    tree_.Assign(at, true);
  };
  for (const GroupId group : groups) {
    for (GroupId at = group; at.level > 0;) expand(at = tree_.ParentOf(at));
    GroupTree::Range inside{group.number, group.number + 1};
    for (std::uint32_t level = group.level; level < tree_.LevelCount(); ++level) {
      for (std::uint32_t number = inside.first; number < inside.end; ++number) expand({level, number});
      if (level + 1 < tree_.LevelCount()) {
        inside = {tree_.ChildrenOf({level, inside.first}).first,
                  tree_.ChildrenOf({level, inside.end - 1}).end};
      }
    }
  }
  tree_.Recount();
}

}  // namespace ferrowind::grid_engine
