// SQLite declares what tells of changes only to those who ask for it.
#define SQLITE_ENABLE_PREUPDATE_HOOK
#include "ferrowind/adapters/sqlite/row_recorder.h"

#include <algorithm>
#include <iterator>

#include "ferrowind/platform/database/json_object.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {
namespace {

using platform::Value;

/// The columns of CldHistoryRow that hold keys, by their places in `ReplacedRow::key`.
enum KeyColumn : std::size_t { kID1, kYear1, kDay1, kID2, kPosition };

struct Column {
  /// In the table.
  int place;
  const char* name;
};

struct RecordedTable {
  std::string_view name;
  /// Of the key, which is in front: the column of CldHistoryRow that each goes into.
  std::vector<KeyColumn> key;
  /// Those that make up the old row.
  std::vector<Column> columns;
};

const std::vector<RecordedTable>& Tables() {
  static const std::vector<RecordedTable> tables = {
      {"CldCalendar", {kID1, kYear1}, {}},
      {"CldDay", {kID1, kYear1, kDay1}, {{4, "TID1"}, {5, "ID2"}, {6, "Comment"}}},
      {"CldHoliday",
       {kID2},
       {{1, "Name1"}, {2, "Comment"}, {3, "TID1"}, {4, "D1"}, {5, "MY"}, {6, "MD"}, {7, "WD"}, {8, "Del"}}},
      {"DicCcy", {kID1}, {{1, "Ccy"}, {2, "CcyType"}, {3, "Name"}, {4, "LastDay"}}},
      {"CldBook", {kID1}, {{1, "Publisher"}, {2, "Document"}, {3, "FromYear"}}},
      {"CldRecurrence",
       {kID1, kPosition},
       {{2, "Name1"}, {3, "TID1"}, {4, "Expression"}, {5, "Comment"}, {6, "MovedName"}}},
  };
  return tables;
}

constexpr std::size_t kCalendarTable = 0;
constexpr std::size_t kDayTable = 1;
constexpr std::string_view kOrdinaryDay = R"({"TID1" : 1, "ID2" : null, "Comment" : null})";

/// Asks for a cell of the row that SQLite tells of, as it was or as it becomes.
using CellReader = int (*)(sqlite3* database, int column, sqlite3_value** value);

sqlite3_value* RawCell(sqlite3* database, CellReader read, int column) {
  sqlite3_value* value = nullptr;
  if (read(database, column, &value) != SQLITE_OK || value == nullptr) {
    throw platform::Failure(SQLITE_NOMEM, "A row that was changed cannot be read");
  }
  return value;
}

Value Cell(sqlite3* database, CellReader read, int column) {
  sqlite3_value* const value = RawCell(database, read, column);
  switch (sqlite3_value_type(value)) {
    case SQLITE_NULL:
      return {};
    case SQLITE_INTEGER:
      return static_cast<std::int32_t>(sqlite3_value_int64(value));
    default: {
      const auto* const text = reinterpret_cast<const char*>(sqlite3_value_text(value));
      if (text == nullptr) throw platform::Failure(SQLITE_NOMEM, "There is not enough memory for a text");
      return std::string(text, static_cast<std::size_t>(sqlite3_value_bytes(value)));
    }
  }
}

std::string RowText(sqlite3* database, CellReader read, const RecordedTable& table) {
  platform::JsonObject row;
  for (const Column& column : table.columns) row.Add(column.name, Cell(database, read, column.place));
  return row.Text();
}

}  // namespace

RowRecorder::RowRecorder(const DatabaseHandle& database) : database_(database) {
  sqlite3_preupdate_hook(database_.Get(), OnChange, this);
}

RowRecorder::~RowRecorder() { sqlite3_preupdate_hook(database_.Get(), nullptr, nullptr); }

void RowRecorder::OnChange(void* recorder, sqlite3* /*database*/, int operation, const char* /*schema*/,
                           const char* table, sqlite3_int64 /*old_rowid*/,
                           sqlite3_int64 /*new_rowid*/) noexcept {
  auto& self = *static_cast<RowRecorder*>(recorder);
  try {
    const auto& tables = Tables();
    const auto found = std::find_if(tables.begin(), tables.end(),
                                    [&](const RecordedTable& recorded) { return recorded.name == table; });
    if (found != tables.end()) {
      self.Record(static_cast<std::size_t>(std::distance(tables.begin(), found)), operation);
    }
  } catch (...) {
    if (!self.trouble_) self.trouble_ = std::current_exception();
  }
}

void RowRecorder::Record(std::size_t table, int operation) {
  const RecordedTable& recorded = Tables()[table];
  // No statement of a procedure changes a key.
  const CellReader read = operation == SQLITE_INSERT ? sqlite3_preupdate_new : sqlite3_preupdate_old;
  Key key{static_cast<std::int64_t>(table)};
  for (std::size_t i = 0; i < recorded.key.size(); ++i) {
    key[i + 1] = sqlite3_value_int64(RawCell(database_.Get(), read, static_cast<int>(i)));
  }
  if (IsNewDay(key, operation)) return;
  std::optional<std::string> old_row;
  std::optional<std::string> new_row;
  if (operation != SQLITE_INSERT) old_row = RowText(database_.Get(), sqlite3_preupdate_old, recorded);
  if (operation != SQLITE_DELETE) new_row = RowText(database_.Get(), sqlite3_preupdate_new, recorded);
  RecordReplaced(key, std::move(old_row), new_row);
}

void RowRecorder::RecordReplaced(const Key& key, std::optional<std::string> old_row,
                                 const std::optional<std::string>& new_row) {
  const auto found = changes_.find(key);
  if (found != changes_.end()) {
    found->second.is_as_it_was = found->second.old_row == new_row;
    return;
  }
  if (old_row == new_row) return;
  if (key[0] == kDayTable && !new_row && old_row == kOrdinaryDay) return;
  changes_.emplace(key, Change{std::move(old_row), false});
  order_.push_back(key);
}

bool RowRecorder::IsNewDay(const Key& key, int operation) const {
  if (key[0] != kDayTable || changes_.contains(key)) return false;
  return operation == SQLITE_INSERT || IsOfNewCalendar(key);
}

bool RowRecorder::IsOfNewCalendar(const Key& day) const {
  const auto calendar = changes_.find(Key{kCalendarTable, day[1], day[2], 0});
  return calendar != changes_.end() && !calendar->second.old_row;
}

std::vector<ReplacedRow> RowRecorder::TakeRows() {
  if (trouble_) std::rethrow_exception(trouble_);
  std::vector<ReplacedRow> rows;
  rows.reserve(order_.size());
  for (const Key& key : order_) {
    Change& change = changes_.at(key);
    if (change.is_as_it_was) continue;
    const RecordedTable& table = Tables()[static_cast<std::size_t>(key[0])];
    ReplacedRow row{table.name, {}, {}};
    for (std::size_t i = 0; i < table.key.size(); ++i) {
      row.key[table.key[i]] = static_cast<std::int32_t>(key[i + 1]);
    }
    if (change.old_row) row.old_row = std::move(*change.old_row);
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace ferrowind::sqlite
