#include "host/admin/upgrade_command.h"

#include <ostream>

#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/engine.h"

namespace ferrowind::host {

ExitStatus UpgradeCommand::Run(const platform::EngineRegistry& engines, std::ostream& out) const {
  // Says that there is no such engine, where an adapter can only say that it is not its own.
  (void)engines.EngineFor(url);
  const content::UpgradeOutcome outcome = postgres::IsConnectionString(url)
                                              ? postgres::UpgradeDatabase(url)
                                              : sqlite::UpgradeDatabase(sqlite::PathIn(url));
  if (outcome.from == outcome.to) {
    out << "There is nothing to do: the database has the schema version " << outcome.to << ".\n";
  } else {
    out << "The database was upgraded from the schema version " << outcome.from << " to " << outcome.to
        << ".\n";
  }
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
