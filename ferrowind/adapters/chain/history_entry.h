#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "ferrowind/adapters/content/content_source.h"
#include "ferrowind/adapters/content/content_table.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::chain {

/// The columns of CldHistory, by their places in a row.
namespace entry_column {
enum : std::size_t {
  kEntryID,
  kMoment,
  kUserName,
  kProcedureName,
  kID1,
  kYear1,
  kParameters,
  kReturnValue,
  kRowsChanged,
  kChainPosition,
  kPrevious,
  kHash,
  kCount
};
}  // namespace entry_column

/// The columns of CldHistoryRow, by their places in a row.
namespace row_column {
enum : std::size_t {
  kEntryID,
  kRowNumber,
  kTableName,
  kID1,
  kYear1,
  kDay1,
  kID2,
  kPosition,
  kOldRow,
  kNewRow,
  kCount
};
}  // namespace row_column

/// An entry of the history and what it keeps of the rows that its call changed, by their numbers.
struct HistoryEntry {
  content::Row entry;
  std::vector<content::Row> rows;
};

/// Which entries follow each other: those of a calendar (ID1 and Year1), of a rule book (ID1), or of the
/// rules, currencies and conventions; 0 stands for none.
struct ChainKey {
  std::int64_t id1 = 0;
  std::int64_t year1 = 0;

  friend auto operator<=>(const ChainKey&, const ChainKey&) = default;
};

[[nodiscard]] ChainKey ChainOf(const content::Row& entry);

/// A whole number of any width, and 0 for everything else.
[[nodiscard]] std::int64_t NumberIn(const platform::Value& value);

/// Appends `value` to what a digest is made of, so that no two lists of values give the same text: its length
/// in bytes, a colon and its text, or a dash for nothing. Whole numbers are written in decimal.
void AppendField(const platform::Value& value, std::string& text);

/// What stands in the column Hash: the SHA-256 digest of the entry's columns in front of it and of its rows,
/// the procedures of a server compute the same (functions/history_entry.sql).
[[nodiscard]] std::string HashOf(const HistoryEntry& entry);

/// Which entry it is, for people: its number, what was called for what, by whom and when.
[[nodiscard]] std::string NameOf(const content::Row& entry);

/// Reads a history entry by entry, the oldest first. The entries are in memory meanwhile, their rows are not,
/// because a source has one reader at a time; nothing else of it is used before this one is destroyed.
class EntryReader {
 public:
  /// `source` must outlive the reader.
  explicit EntryReader(content::Source& source);
  /// Of a database before version 5 of the schema; what it has no columns for is empty.
  [[nodiscard]] static EntryReader OfUnchained(content::Source& source);

  /// False behind the last one.
  [[nodiscard]] bool Next(HistoryEntry& entry);

 private:
  EntryReader(content::Source& source, const content::Table& entries, const content::Table& rows);
  void ReadRow();

  std::vector<content::Row> entries_;
  std::size_t next_ = 0;
  std::unique_ptr<content::RowReader> rows_;
  content::Row row_;
  bool has_row_ = false;
};

}  // namespace ferrowind::chain
