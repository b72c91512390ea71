#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ferrowind/adapters/sqlite/call_memory.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::sqlite {

/// A row as it was before a call changed it and as the call left it, in the form of the table CldHistoryRow.
struct ReplacedRow {
  std::string_view table;
  /// ID1, Year1, Day1, ID2, Position; empty where the table's key has no such column.
  std::array<platform::Value, 5> key;
  /// The JSON text of the other columns; empty when there was no such row.
  platform::Value old_row;
  /// The same behind the call; of a calendar that was added, the days that have a rule or a comment.
  platform::Value new_row;
};

/// While it lives, keeps how every row of the content was before the database's statements changed it first,
/// and how they left it. SQLite itself tells of the changes, so no procedure can forget one. Used by one
/// thread; a database has one recorder at a time.
class RowRecorder {
 public:
  /// `database` must outlive the recorder.
  explicit RowRecorder(const DatabaseHandle& database,
                       std::size_t most_megabytes = CallMemory::kMostMegabytes);
  RowRecorder(const RowRecorder&) = delete;
  RowRecorder& operator=(const RowRecorder&) = delete;
  ~RowRecorder();

  /// The rows that are not now as they were, in the order in which they were changed first. Days of a
  /// calendar that was added are left out, and days without rule and comment that were removed. Rows that
  /// took more memory than a call may are a failure. Called once.
  [[nodiscard]] std::vector<ReplacedRow> TakeRows();

 private:
  struct Change {
    std::optional<std::string> old_row;
    std::optional<std::string> new_row;
  };
  /// The table, by its place among those that are recorded, and the key's columns.
  using Key = std::array<std::int64_t, 4>;

  static void OnChange(void* recorder, sqlite3* database, int operation, const char* schema,
                       const char* table, sqlite3_int64 old_rowid, sqlite3_int64 new_rowid) noexcept;
  void Record(std::size_t table, int operation);
  void RecordReplaced(const Key& key, std::optional<std::string> old_row, std::optional<std::string> new_row);
  /// Whether the change is of a day that was added, of which nothing is kept.
  [[nodiscard]] bool IsNewDay(const Key& key, int operation) const;
  [[nodiscard]] bool IsOfNewCalendar(const Key& day) const;
  [[nodiscard]] std::string TextOfNewCalendar(const Key& calendar);

  const DatabaseHandle& database_;
  CallMemory memory_;
  std::map<Key, Change> changes_;
  std::vector<Key> order_;
  /// What went wrong while SQLite told of a change.
  std::exception_ptr trouble_;
};

}  // namespace ferrowind::sqlite
