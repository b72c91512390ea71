#include <functional>
#include <string>

#include "ferrowind/adapters/chain/chain_start.h"
#include "ferrowind/adapters/chain/chained_entries.h"
#include "ferrowind/adapters/content/database_status.h"
#include "ferrowind/adapters/sqlite/content_source.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/delivered_schema.h"
#include "ferrowind/adapters/sqlite/procedure_catalogue.h"
#include "ferrowind/adapters/sqlite/schema_guard.h"
#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/adapters/sqlite/statement_limit.h"
#include "ferrowind/adapters/sqlite/transaction.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/database/history_moment.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {
namespace {

std::vector<content::UpgradeScript> NeededScripts(const DatabaseHandle& database, std::int64_t version) {
  return content::ScriptsFor("The database " + database.Path(), version, DeliveredUpgrades());
}

/// For the script that chains the entries.
void ChainEntries(DatabaseHandle& database) {
  database.Execute("CREATE TABLE ChainedEntry (EntryID INTEGER PRIMARY KEY, ChainPosition, Previous, Hash)");
  FileTarget content(database, false);
  const auto rows = chain::ChainedEntries(content);
  const auto writer = content.Writer(chain::ChainedEntryTable(), static_cast<std::int64_t>(rows.size()));
  for (const auto& row : rows) writer->Add(row);
  writer->Finish();
}

void StartChains(DatabaseHandle& database) {
  Statement last(database, "SELECT ifnull(max(EntryID), 0) FROM CldHistory");
  last.Step();
  FileTarget content(database, false);
  chain::WriteChainStart(content, last.Integer(0), platform::MomentNow());
}

void RunScripts(DatabaseHandle& database, const std::vector<content::UpgradeScript>& scripts) {
  for (const auto& script : scripts) {
    if (script.version == chain::kVersionOfChains) ChainEntries(database);
    database.Execute(std::string(script.sql).c_str());
    database.Execute(("PRAGMA user_version = " + std::to_string(script.version)).c_str());
  }
  if (scripts.front().version <= chain::kVersionOfChains) StartChains(database);
  // Procedures that others have added stay.
  for (const auto& procedure : DeliveredProcedures()) {
    RemoveFromCatalogue(database, procedure.name);
    AddToCatalogue(database, procedure);
  }
}

}  // namespace

content::UpgradeOutcome UpgradeDatabase(const std::string& path, const std::function<bool()>& is_stopped) {
  return platform::WithFailuresOnly([&]() -> content::UpgradeOutcome {
    DatabaseHandle database(path);
    const StatementLimit limit(database, is_stopped);
    RequireCalendarDatabase(database);
    const std::int64_t seen = SchemaVersionOf(database);
    if (NeededScripts(database, seen).empty()) return {seen, seen};

    Transaction transaction(database, Transaction::Kind::kWriting);
    // Another program may have changed or upgraded it by now.
    RequireCalendarDatabase(database);
    const std::int64_t from = SchemaVersionOf(database);
    const auto scripts = NeededScripts(database, from);
    if (scripts.empty()) return {from, from};
    try {
      RunScripts(database, scripts);
      transaction.Commit();
    } catch (const platform::Failure& failure) {
      throw platform::Failure(failure.Number(),
                              "The upgrade failed, and the database is as it was. " + failure.Description());
    }
    return {from, scripts.back().version};
  });
}

std::int64_t ReadSchemaVersion(const std::string& path) {
  return platform::WithFailuresOnly([&] {
    const DatabaseHandle database(path);
    RequireCalendarDatabase(database);
    return SchemaVersionOf(database);
  });
}

void RequireThisVersion(const std::string& path) {
  content::RequireSchemaVersion("The database " + path, ReadSchemaVersion(path),
                                DeliveredUpgrades().back().version);
}

}  // namespace ferrowind::sqlite
