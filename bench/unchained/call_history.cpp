#include "ferrowind/adapters/sqlite/call_history.h"

#include <cstdint>
#include <string>

#include "ferrowind/adapters/content/content_table.h"
#include "ferrowind/adapters/sqlite/content_source.h"
#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/adapters/sqlite/system_user.h"
#include "ferrowind/platform/database/history_moment.h"
#include "ferrowind/platform/database/parameters_json.h"

namespace ferrowind::sqlite {

/// The entry and its rows as they are without a chain: nothing is looked up and nothing hashed. The columns
/// of the chain are there, and empty.
void AddToHistory(const DatabaseHandle& database, const RecordedCall& call,
                  const std::vector<ReplacedRow>& rows) {
  Statement ask(database, "SELECT ifnull(max(EntryID), 0) + 1 FROM CldHistory");
  ask.Step();
  const platform::Value entry = ask.Integer(0);
  RowWriterOf(database, content::TableNamed("CldHistory"))
      ->Add({entry, platform::MomentNow(), SystemUserName(), call.procedure.name, call.currency, call.year,
             platform::ParametersAsJson(call.procedure.parameters, call.inputs), 0, call.rows_changed, entry,
             "", ""});
  if (rows.empty()) return;
  const auto writer = RowWriterOf(database, content::TableNamed("CldHistoryRow"));
  std::int64_t number = 0;
  for (const ReplacedRow& replaced : rows) {
    content::Row row = {entry, ++number, std::string(replaced.table)};
    row.insert(row.end(), replaced.key.begin(), replaced.key.end());
    row.push_back(replaced.old_row);
    row.push_back(replaced.new_row);
    writer->Add(row);
  }
}

}  // namespace ferrowind::sqlite
