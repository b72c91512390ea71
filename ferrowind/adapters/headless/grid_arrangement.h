#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "ferrowind/platform/toolkit/grid_keys.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::headless {

/// What makes a row of a grid the same row after another sort: its record, or the path of its group.
struct GridRowIdentity {
  /// 0 for a group row.
  platform::RecordSet::Bookmark bookmark = 0;
  /// One step per level, each the group's column and value and a trailing separator, so that the path of a
  /// group begins with that of the group it is in. A record's is that of its innermost group.
  std::string group_path;

  [[nodiscard]] bool IsRecord() const { return bookmark != 0; }
  [[nodiscard]] bool IsNone() const { return !IsRecord() && group_path.empty(); }
  friend bool operator==(const GridRowIdentity&, const GridRowIdentity&) = default;
};

/// A row on show.
struct GridRow {
  GridRowIdentity identity;
  /// 0 for the outermost group.
  std::size_t level = 0;
  /// Of a group row: its column, the first of its records, and how many they are.
  std::int16_t group_column = 0;
  platform::RecordSet::Bookmark first_record = 0;
  std::size_t record_count = 0;
};

/// Puts records into the order of keys and under the rows of their groups.
class GridArrangement {
 public:
  /// Gives what a record is sorted and grouped by in a column.
  using CellReader =
      std::function<platform::Value(platform::RecordSet::Bookmark bookmark, std::int16_t column)>;

  GridArrangement(std::vector<platform::GridKey> groups, std::vector<platform::GridKey> sorts,
                  CellReader cells)
      : groups_(std::move(groups)), sorts_(std::move(sorts)), cells_(std::move(cells)) {}

  /// The rows on show. Records that all keys find equal stay in their order; so do the groups of a key
  /// without an order. What lies in a collapsed group is left out.
  [[nodiscard]] std::vector<GridRow> Arrange(const std::vector<platform::RecordSet::Bookmark>& bookmarks,
                                             const std::set<std::string>& collapsed) const;
  /// The path of the innermost group of a record.
  [[nodiscard]] std::string PathOf(platform::RecordSet::Bookmark bookmark) const;

 private:
  struct Record;
  struct Target;
  using Range = std::vector<Record>::const_iterator;

  [[nodiscard]] std::vector<Record> SortedRecords(
      const std::vector<platform::RecordSet::Bookmark>& bookmarks) const;
  void AppendRows(Range first, Range last, std::size_t level, const std::string& path, Target& target) const;

  std::vector<platform::GridKey> groups_;
  std::vector<platform::GridKey> sorts_;
  CellReader cells_;
};

/// The paths of the groups that the group of `path` is in, itself included, the outermost first.
[[nodiscard]] std::vector<std::string> GroupPathsTo(const std::string& path);

}  // namespace ferrowind::headless
