// SQLite declares what tells of changes only to those who ask for it.
#define SQLITE_ENABLE_PREUPDATE_HOOK
#include "ferrowind/adapters/sqlite/row_recorder.h"

#include <algorithm>
#include <iterator>

#include "ferrowind/adapters/chain/recorded_table.h"
#include "ferrowind/adapters/sqlite/result_reader.h"
#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {
namespace {

using chain::kCalendarTable;
using chain::kDayTable;
using chain::RecordedTable;
using chain::RecordedTables;
using platform::Value;

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

std::string TextOf(sqlite3* database, CellReader read, const RecordedTable& table) {
  return RowText(table, [&](int place) { return Cell(database, read, place); });
}

}  // namespace

RowRecorder::RowRecorder(const DatabaseHandle& database, std::size_t most_megabytes)
    : database_(database), memory_(database, most_megabytes) {
  sqlite3_preupdate_hook(database_.Get(), OnChange, this);
}

RowRecorder::~RowRecorder() { sqlite3_preupdate_hook(database_.Get(), nullptr, nullptr); }

void RowRecorder::OnChange(void* recorder, sqlite3* /*database*/, int operation, const char* /*schema*/,
                           const char* table, sqlite3_int64 /*old_rowid*/,
                           sqlite3_int64 /*new_rowid*/) noexcept {
  auto& self = *static_cast<RowRecorder*>(recorder);
  // Nothing of the call is kept then.
  if (self.trouble_) return;
  try {
    const auto& tables = RecordedTables();
    const auto found = std::find_if(tables.begin(), tables.end(),
                                    [&](const RecordedTable& recorded) { return recorded.name == table; });
    if (found != tables.end()) {
      self.Record(static_cast<std::size_t>(std::distance(tables.begin(), found)), operation);
    }
  } catch (...) {
    self.trouble_ = std::current_exception();
  }
}

void RowRecorder::Record(std::size_t table, int operation) {
  const RecordedTable& recorded = RecordedTables()[table];
  // No statement of a procedure changes a key.
  const CellReader read = operation == SQLITE_INSERT ? sqlite3_preupdate_new : sqlite3_preupdate_old;
  Key key{static_cast<std::int64_t>(table)};
  for (std::size_t i = 0; i < recorded.key.size(); ++i) {
    key[i + 1] = sqlite3_value_int64(RawCell(database_.Get(), read, static_cast<int>(i)));
  }
  if (IsNewDay(key, operation)) return;
  std::optional<std::string> old_row;
  std::optional<std::string> new_row;
  if (operation != SQLITE_INSERT) old_row = TextOf(database_.Get(), sqlite3_preupdate_old, recorded);
  if (operation != SQLITE_DELETE) new_row = TextOf(database_.Get(), sqlite3_preupdate_new, recorded);
  RecordReplaced(key, std::move(old_row), std::move(new_row));
}

void RowRecorder::RecordReplaced(const Key& key, std::optional<std::string> old_row,
                                 std::optional<std::string> new_row) {
  memory_.Take(old_row.value_or("").size() + new_row.value_or("").size());
  const auto found = changes_.find(key);
  if (found != changes_.end()) {
    found->second.new_row = std::move(new_row);
    return;
  }
  if (old_row == new_row) return;
  if (key[0] == kDayTable && !new_row && old_row == chain::kOrdinaryDay) return;
  changes_.emplace(key, Change{std::move(old_row), std::move(new_row)});
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

std::string RowRecorder::TextOfNewCalendar(const Key& calendar) {
  const Value currency(calendar[1]);
  const Value year(calendar[2]);
  Statement days(database_,
                 "SELECT Day1, TID1, ID2, Comment FROM CldDay"
                 " WHERE ID1 = ?1 AND Year1 = ?2 AND (ID2 IS NOT NULL OR Comment IS NOT NULL) ORDER BY Day1");
  days.Bind(1, currency);
  days.Bind(2, year);
  chain::NewCalendarText text;
  const ResultReader reader(days);
  // The places in the table are those in the row, but for the first columns.
  const RecordedTable& table = RecordedTables()[kDayTable];
  const int hidden = table.columns.front().place - 1;
  while (days.Step()) {
    const std::string row = RowText(table, [&](int place) { return reader.Cell(place - hidden); });
    memory_.Take(row.size());
    text.Add(days.Integer(0), row);
  }
  return text.Text();
}

std::vector<ReplacedRow> RowRecorder::TakeRows() {
  if (trouble_) std::rethrow_exception(trouble_);
  std::vector<ReplacedRow> rows;
  rows.reserve(order_.size());
  for (const Key& key : order_) {
    Change& change = changes_.at(key);
    if (change.old_row == change.new_row) continue;
    const RecordedTable& table = RecordedTables()[static_cast<std::size_t>(key[0])];
    ReplacedRow row{table.name, {}, {}, {}};
    for (std::size_t i = 0; i < table.key.size(); ++i) {
      row.key[table.key[i]] = static_cast<std::int32_t>(key[i + 1]);
    }
    if (key[0] == kCalendarTable && change.new_row) change.new_row = TextOfNewCalendar(key);
    if (change.old_row) row.old_row = std::move(*change.old_row);
    if (change.new_row) row.new_row = std::move(*change.new_row);
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace ferrowind::sqlite
