#include <functional>
#include <string>

#include "ferrowind/adapters/chain/chain_start.h"
#include "ferrowind/adapters/chain/chained_entries.h"
#include "ferrowind/adapters/postgres/administrator.h"
#include "ferrowind/adapters/postgres/content_target.h"
#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/delivered_objects.h"
#include "ferrowind/adapters/postgres/postgres_failure.h"
#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/adapters/postgres/schema_version.h"
#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/adapters/postgres/table_locks.h"
#include "ferrowind/adapters/postgres/work_commit.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/database/history_moment.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

#include "database/postgres/embedded_sql.h"

namespace ferrowind::postgres {
namespace {

std::vector<content::UpgradeScript> NeededScripts(ServerConnection& connection, std::int64_t version) {
  return content::ScriptsFor(connection.DatabaseName(), version, DeliveredUpgrades());
}

/// For the script that chains the entries.
void ChainEntries(ServerConnection& connection) {
  connection.RunScript(
      "CREATE TABLE ChainedEntry (EntryID bigint PRIMARY KEY, ChainPosition integer, Previous text, Hash "
      "text)");
  ServerTarget content(connection, ServerTarget::Kind::kExisting);
  const auto rows = chain::ChainedEntries(content);
  const auto writer = content.Writer(chain::ChainedEntryTable(), static_cast<std::int64_t>(rows.size()));
  for (const auto& row : rows) writer->Add(row);
  writer->Finish();
}

void StartChains(ServerConnection& connection) {
  const auto last = ReadRecordSet(
      connection.Query("SELECT coalesce(max(EntryID), 0)::integer AS last FROM CldHistory").get());
  ServerTarget content(connection, ServerTarget::Kind::kExisting);
  chain::WriteChainStart(content, platform::ToInt32((*last)["last"]), platform::MomentNow());
}

void RunScripts(ServerConnection& connection, const std::vector<content::UpgradeScript>& scripts) {
  connection.RunScript(std::string(embedded::kPostgresRoles));
  connection.RunScript("SET LOCAL ROLE ferrowind_owner; SET LOCAL search_path = ferrowind, pg_temp");
  for (const auto& script : scripts) {
    if (script.version == chain::kVersionOfChains) ChainEntries(connection);
    connection.RunScript(std::string(script.sql));
  }
  if (scripts.front().version <= chain::kVersionOfChains) StartChains(connection);
  connection.RunScript("UPDATE SchemaVersion SET Version = " + std::to_string(scripts.back().version));
  ReplaceRoutines(connection);
  GiveDeliveredRights(connection);
}

}  // namespace

content::UpgradeOutcome UpgradeDatabase(const std::string& connection_string,
                                        const std::function<bool()>& is_stopped) {
  return platform::WithFailuresOnly([&]() -> content::UpgradeOutcome {
    ServerConnection connection(connection_string, is_stopped);
    RequireCalendarDatabase(connection);
    RequireAdministrator(connection);
    connection.RunScript("BEGIN ISOLATION LEVEL READ COMMITTED");
    KeepOut(connection, KeptOut::kOtherUpgrades);
    const std::int64_t from = SchemaVersionOf(connection);
    const auto scripts = NeededScripts(connection, from);
    if (scripts.empty()) return {from, from};
    try {
      // All at once, so that it waits before it has done anything.
      KeepOut(connection, KeptOut::kEverybody);
      RunScripts(connection, scripts);
    } catch (const platform::Failure& failure) {
      throw Introduced("The upgrade failed, and the database is as it was. ", failure);
    }
    connection.StopNoMore();
    CommitWork(connection);
    return {from, scripts.back().version};
  });
}

}  // namespace ferrowind::postgres
