#include <string>

#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/delivered_objects.h"
#include "ferrowind/adapters/postgres/postgres_failure.h"
#include "ferrowind/adapters/postgres/schema_version.h"
#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/values/failure.h"

#include "database/postgres/embedded_sql.h"

namespace ferrowind::postgres {
namespace {

std::vector<content::UpgradeScript> NeededScripts(ServerConnection& connection, std::int64_t version) {
  return content::ScriptsFor(connection.DatabaseName(), version, DeliveredUpgrades());
}

void RunScripts(ServerConnection& connection, const std::vector<content::UpgradeScript>& scripts) {
  connection.RunScript(std::string(embedded::kPostgresRoles));
  connection.RunScript("SET LOCAL ROLE ferrowind_owner; SET LOCAL search_path = ferrowind, pg_temp");
  for (const auto& script : scripts) connection.RunScript(std::string(script.sql));
  connection.RunScript("UPDATE SchemaVersion SET Version = " + std::to_string(scripts.back().version));
  ReplaceRoutines(connection);
  GiveDeliveredRights(connection);
  connection.RunScript("COMMIT");
}

}  // namespace

content::UpgradeOutcome UpgradeDatabase(const std::string& connection_string) {
  return platform::WithFailuresOnly([&]() -> content::UpgradeOutcome {
    ServerConnection connection(connection_string);
    RequireCalendarDatabase(connection);
    // One upgrade of a database at a time.
    connection.RunScript("BEGIN; SELECT pg_advisory_xact_lock(4266537)");
    const std::int64_t from = SchemaVersionOf(connection);
    const auto scripts = NeededScripts(connection, from);
    if (scripts.empty()) return {from, from};
    try {
      RunScripts(connection, scripts);
    } catch (const platform::Failure& failure) {
      throw Introduced("The upgrade failed, and the database is as it was. ", failure);
    }
    return {from, scripts.back().version};
  });
}

}  // namespace ferrowind::postgres
