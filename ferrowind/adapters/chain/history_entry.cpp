#include "ferrowind/adapters/chain/history_entry.h"

#include <string_view>
#include <utility>

#include "ferrowind/adapters/chain/sha256.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::chain {
namespace {

using content::Row;
using content::Table;

Table WithColumns(std::string_view name, std::size_t count) {
  Table table = content::TableNamed(name);
  table.columns.resize(count);
  return table;
}

std::vector<Row> AllRows(content::Source& source, const Table& table) {
  const auto reader = source.Rows(table, content::RowOrder::kByKey);
  std::vector<Row> rows;
  for (Row row; reader->Next(row);) rows.push_back(std::move(row));
  return rows;
}

std::string ForWhat(const Row& entry) {
  const auto [id1, year1] = ChainOf(entry);
  if (year1 != 0) return " for the calendar " + std::to_string(id1) + " of " + std::to_string(year1);
  if (id1 != 0) return " for " + std::to_string(id1);
  return "";
}

}  // namespace

std::int64_t NumberIn(const platform::Value& value) {
  if (const auto* number = value.If<std::int64_t>()) return *number;
  if (const auto* number = value.If<std::int32_t>()) return *number;
  if (const auto* number = value.If<std::int16_t>()) return *number;
  return 0;
}

ChainKey ChainOf(const Row& entry) {
  return {NumberIn(entry[entry_column::kID1]), NumberIn(entry[entry_column::kYear1])};
}

void AppendField(const platform::Value& value, std::string& text) {
  if (value.IsEmpty()) {
    text += '-';
    return;
  }
  const std::string content = platform::ToText(value);
  text += std::to_string(content.size());
  text += ':';
  text += content;
}

std::string HashOf(const HistoryEntry& entry) {
  std::string text;
  for (std::size_t column = 0; column < entry_column::kHash; ++column) AppendField(entry.entry[column], text);
  for (const Row& row : entry.rows) {
    for (std::size_t column = row_column::kRowNumber; column < row_column::kCount; ++column) {
      AppendField(row[column], text);
    }
  }
  return Sha256Text(text);
}

std::string NameOf(const Row& entry) {
  const auto text = [&](std::size_t column) { return platform::ToTextOrEmpty(entry[column]); };
  return "entry " + text(entry_column::kEntryID) + " of the history (" + text(entry_column::kProcedureName) +
         ForWhat(entry) + ", by " + text(entry_column::kUserName) + ", " + text(entry_column::kMoment) + ")";
}

EntryReader::EntryReader(content::Source& source)
    : EntryReader(source, content::TableNamed("CldHistory"), content::TableNamed("CldHistoryRow")) {}

EntryReader EntryReader::OfUnchained(content::Source& source) {
  return {source, WithColumns("CldHistory", entry_column::kChainPosition),
          WithColumns("CldHistoryRow", row_column::kNewRow)};
}

EntryReader::EntryReader(content::Source& source, const Table& entries, const Table& rows)
    : entries_(AllRows(source, entries)), rows_(source.Rows(rows, content::RowOrder::kByKey)) {
  ReadRow();
}

bool EntryReader::Next(HistoryEntry& entry) {
  if (next_ == entries_.size()) return false;
  entry.entry = std::move(entries_[next_++]);
  entry.entry.resize(entry_column::kCount);
  entry.rows.clear();
  const std::int64_t number = NumberIn(entry.entry[entry_column::kEntryID]);
  // Rows of an entry that is not there are another finding.
  while (has_row_ && NumberIn(row_[row_column::kEntryID]) < number) ReadRow();
  while (has_row_ && NumberIn(row_[row_column::kEntryID]) == number) {
    entry.rows.push_back(std::move(row_));
    ReadRow();
  }
  return true;
}

void EntryReader::ReadRow() {
  has_row_ = rows_->Next(row_);
  row_.resize(row_column::kCount);
}

}  // namespace ferrowind::chain
