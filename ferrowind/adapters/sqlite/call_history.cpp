#include "ferrowind/adapters/sqlite/call_history.h"

#include <string>

#include <sqlite3.h>

#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/adapters/sqlite/system_user.h"
#include "ferrowind/platform/database/history_moment.h"
#include "ferrowind/platform/database/parameters_json.h"

namespace ferrowind::sqlite {

using platform::Value;

std::int64_t AddToHistory(const DatabaseHandle& database, const HistoryEntry& call) {
  const Value moment(platform::MomentNow());
  const Value user(SystemUserName());
  const Value name(call.procedure.name);
  const Value parameters(platform::ParametersAsJson(call.procedure.parameters, call.inputs));
  Statement entry(database,
                  "INSERT INTO CldHistory (UserName, ProcedureName, ID1, Year1, Parameters, ReturnValue,"
                  " RowsChanged, Moment) VALUES (?1, ?2, ?3, ?4, ?5, 0, ?6, ?7)");
  entry.Bind(1, user);
  entry.Bind(2, name);
  entry.Bind(3, call.currency);
  entry.Bind(4, call.year);
  entry.Bind(5, parameters);
  entry.Bind(6, call.rows_changed);
  entry.Bind(7, moment);
  entry.Step();
  return sqlite3_last_insert_rowid(database.Get());
}

void AddReplacedRows(const DatabaseHandle& database, std::int64_t entry,
                     const std::vector<ReplacedRow>& rows) {
  if (rows.empty()) return;
  Statement insert(
      database,
      "INSERT INTO CldHistoryRow (EntryID, RowNumber, TableName, ID1, Year1, Day1, ID2, Position,"
      " OldRow) VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9)");
  insert.Bind(1, entry);
  std::int32_t number = 0;
  for (const ReplacedRow& row : rows) {
    const Value table{std::string(row.table)};
    insert.Bind(2, ++number);
    insert.Bind(3, table);
    int index = 3;
    for (const Value& key : row.key) insert.Bind(++index, key);
    insert.Bind(++index, row.old_row);
    insert.Step();
    insert.Reset();
  }
}

}  // namespace ferrowind::sqlite
