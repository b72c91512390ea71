#include "ferrowind/adapters/sqlite/call_history.h"

#include <cstddef>
#include <string>

#include "ferrowind/adapters/chain/history_entry.h"
#include "ferrowind/adapters/content/content_table.h"
#include "ferrowind/adapters/sqlite/content_source.h"
#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/adapters/sqlite/system_user.h"
#include "ferrowind/platform/database/history_moment.h"
#include "ferrowind/platform/database/parameters_json.h"

namespace ferrowind::sqlite {
namespace {

using chain::HistoryEntry;
using platform::Value;

/// Numbers the entry, and puts it behind the last one of its chain.
void TakePlace(const DatabaseHandle& database, content::Row& entry) {
  Statement ask(
      database,
      "SELECT (SELECT ifnull(max(EntryID), 0) + 1 FROM CldHistory), ifnull(max(ChainPosition), 0) + 1, Hash"
      " FROM CldHistory WHERE ifnull(ID1, 0) = ifnull(?1, 0) AND ifnull(Year1, 0) = ifnull(?2, 0)");
  ask.Bind(1, entry[chain::entry_column::kID1]);
  ask.Bind(2, entry[chain::entry_column::kYear1]);
  ask.Step();
  entry[chain::entry_column::kEntryID] = ask.Integer(0);
  entry[chain::entry_column::kChainPosition] = ask.Integer(1);
  entry[chain::entry_column::kPrevious] = std::string(ask.Text(2));
}

content::Row RowFor(const Value& entry, std::size_t number, const ReplacedRow& replaced) {
  content::Row row = {entry, static_cast<std::int64_t>(number), std::string(replaced.table)};
  row.insert(row.end(), replaced.key.begin(), replaced.key.end());
  row.push_back(replaced.old_row);
  row.push_back(replaced.new_row);
  return row;
}

void Write(const DatabaseHandle& database, const HistoryEntry& entry) {
  RowWriterOf(database, content::TableNamed("CldHistory"))->Add(entry.entry);
  if (entry.rows.empty()) return;
  const auto rows = RowWriterOf(database, content::TableNamed("CldHistoryRow"));
  for (const content::Row& row : entry.rows) rows->Add(row);
}

}  // namespace

void AddToHistory(const DatabaseHandle& database, const RecordedCall& call,
                  const std::vector<ReplacedRow>& rows) {
  HistoryEntry entry;
  entry.entry = {{},
                 platform::MomentNow(),
                 SystemUserName(),
                 call.procedure.name,
                 call.currency,
                 call.year,
                 platform::ParametersAsJson(call.procedure.parameters, call.inputs),
                 0,
                 call.rows_changed,
                 {},
                 {},
                 {}};
  TakePlace(database, entry.entry);
  for (const ReplacedRow& row : rows) {
    entry.rows.push_back(RowFor(entry.entry[chain::entry_column::kEntryID], entry.rows.size() + 1, row));
  }
  entry.entry[chain::entry_column::kHash] = chain::HashOf(entry);
  Write(database, entry);
}

}  // namespace ferrowind::sqlite
