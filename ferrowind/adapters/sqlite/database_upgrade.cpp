#include <string>

#include "ferrowind/adapters/content/database_status.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/delivered_schema.h"
#include "ferrowind/adapters/sqlite/procedure_catalogue.h"
#include "ferrowind/adapters/sqlite/transaction.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {
namespace {

std::vector<content::UpgradeScript> NeededScripts(const DatabaseHandle& database, std::int64_t version) {
  return content::ScriptsFor("The database " + database.Path(), version, DeliveredUpgrades());
}

void RunScripts(DatabaseHandle& database, const std::vector<content::UpgradeScript>& scripts) {
  for (const auto& script : scripts) {
    database.Execute(std::string(script.sql).c_str());
    database.Execute(("PRAGMA user_version = " + std::to_string(script.version)).c_str());
  }
  // Procedures that others have added stay.
  for (const auto& procedure : DeliveredProcedures()) {
    RemoveFromCatalogue(database, procedure.name);
    AddToCatalogue(database, procedure);
  }
}

}  // namespace

content::UpgradeOutcome UpgradeDatabase(const std::string& path) {
  return platform::WithFailuresOnly([&]() -> content::UpgradeOutcome {
    DatabaseHandle database(path);
    { const ProcedureCatalogue must_be_a_calendar_database(database); }
    const std::int64_t seen = SchemaVersionOf(database);
    if (NeededScripts(database, seen).empty()) return {seen, seen};

    Transaction transaction(database, Transaction::Kind::kWriting);
    // Another program may have upgraded it by now.
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
    const ProcedureCatalogue must_be_a_calendar_database(database);
    return SchemaVersionOf(database);
  });
}

void RequireThisVersion(const std::string& path) {
  content::RequireSchemaVersion("The database " + path, ReadSchemaVersion(path),
                                DeliveredUpgrades().back().version);
}

}  // namespace ferrowind::sqlite
