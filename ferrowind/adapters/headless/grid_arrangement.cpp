#include "ferrowind/adapters/headless/grid_arrangement.h"

#include <algorithm>
#include <utility>

#include "ferrowind/adapters/grid_engine/value_order.h"
#include "ferrowind/adapters/headless/call_log.h"
#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind::headless {
namespace {

using platform::GridKey;
using platform::RecordSet;
using platform::Value;

constexpr char kPathSeparator = '\x1F';

/// Texts that differ in letter case alone are in one group, so its path must not tell them apart.
std::string PathStep(std::int16_t column, const Value& value) {
  return std::to_string(column) + "=" + platform::FoldCase(ArgumentText(value)) + kPathSeparator;
}

}  // namespace

struct GridArrangement::Record {
  RecordSet::Bookmark bookmark = 0;
  std::vector<Value> group_values;
  /// What the groups are ordered by: their values, or for a key without an order the place of their first
  /// record.
  std::vector<Value> group_ranks;
  std::vector<Value> sort_values;
};

struct GridArrangement::Target {
  const std::set<std::string>& collapsed;
  std::vector<GridRow> rows;
};

std::vector<GridRow> GridArrangement::Arrange(const std::vector<RecordSet::Bookmark>& bookmarks,
                                              const std::set<std::string>& collapsed) const {
  const std::vector<Record> records = SortedRecords(bookmarks);
  Target target{collapsed, {}};
  AppendRows(records.begin(), records.end(), 0, {}, target);
  return std::move(target.rows);
}

std::string GridArrangement::PathOf(RecordSet::Bookmark bookmark) const {
  std::string path;
  for (const GridKey& group : groups_) path += PathStep(group.ColIndex, cells_(bookmark, group.ColIndex));
  return path;
}

std::vector<GridArrangement::Record> GridArrangement::SortedRecords(
    const std::vector<RecordSet::Bookmark>& bookmarks) const {
  std::vector<Record> records;
  for (const auto bookmark : bookmarks) {
    Record record{bookmark, {}, {}, {}};
    for (const GridKey& key : groups_) record.group_values.push_back(cells_(bookmark, key.ColIndex));
    record.group_ranks = record.group_values;
    for (const GridKey& key : sorts_) record.sort_values.push_back(cells_(bookmark, key.ColIndex));
    records.push_back(std::move(record));
  }
  for (std::size_t level = 0; level < groups_.size(); ++level) {
    if (groups_[level].SortOrder != platform::kSortNone) continue;
    std::vector<Value> seen;
    for (Record& record : records) {
      const Value& value = record.group_values[level];
      const auto found = std::find_if(seen.begin(), seen.end(), [&](const Value& other) {
        return grid_engine::CompareValues(other, value) == 0;
      });
      record.group_ranks[level] = static_cast<std::int32_t>(found - seen.begin());
      if (found == seen.end()) seen.push_back(value);
    }
  }
  const auto compare = [](const std::vector<GridKey>& keys, const std::vector<Value>& left,
                          const std::vector<Value>& right, std::int32_t order_of_unordered) {
    for (std::size_t i = 0; i < keys.size(); ++i) {
      const int order = grid_engine::CompareValues(left[i], right[i]);
      const std::int32_t direction =
          keys[i].SortOrder == platform::kSortNone ? order_of_unordered : keys[i].SortOrder;
      if (order != 0 && direction != 0) return (order < 0) == (direction > 0) ? -1 : 1;
    }
    return 0;
  };
  std::stable_sort(records.begin(), records.end(), [&](const Record& left, const Record& right) {
    const int by_group = compare(groups_, left.group_ranks, right.group_ranks, platform::kSortAscending);
    if (by_group != 0) return by_group < 0;
    return compare(sorts_, left.sort_values, right.sort_values, platform::kSortNone) < 0;
  });
  return records;
}

void GridArrangement::AppendRows(Range first, Range last, std::size_t level, const std::string& path,
                                 Target& target) const {
  if (level == groups_.size()) {
    for (; first != last; ++first) {
      target.rows.push_back({{first->bookmark, path}, level, 0, 0, 0});
    }
    return;
  }
  while (first != last) {
    const Value& value = first->group_values[level];
    const auto end = std::find_if_not(first, last, [&](const Record& record) {
      return grid_engine::CompareValues(record.group_values[level], value) == 0;
    });
    const std::int16_t column = groups_[level].ColIndex;
    const std::string group_path = path + PathStep(column, value);
    target.rows.push_back(
        {{0, group_path}, level, column, first->bookmark, static_cast<std::size_t>(end - first)});
    if (!target.collapsed.contains(group_path)) AppendRows(first, end, level + 1, group_path, target);
    first = end;
  }
}

std::vector<std::string> GroupPathsTo(const std::string& path) {
  std::vector<std::string> paths;
  for (std::size_t i = 0; i < path.size(); ++i) {
    if (path[i] == kPathSeparator) paths.push_back(path.substr(0, i + 1));
  }
  return paths;
}

}  // namespace ferrowind::headless
