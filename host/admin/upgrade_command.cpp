#include "host/admin/upgrade_command.h"

#include <ostream>

#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/planning/counted.h"

#include "host/admin/text_escapes.h"
#include "host/delivery/first_years.h"
#include "host/session/procedure_session.h"

namespace ferrowind::host {
namespace {

void TellFirstYears(const FirstYears& years, std::ostream& out) {
  if (years.given != 0) {
    out << planning::Counted(years.given, "rule book says", "rule books say") << " since when "
        << (years.given == 1 ? "it holds" : "they hold") << " now, as delivered.\n";
  }
  if (years.others.empty()) return;
  out << "Rule books that are not as delivered tell of all years as before:";
  for (const std::string& code : years.others) out << ' ' << OneLine(code);
  out << ". A line \"since YEAR\" in them says otherwise.\n";
}

}  // namespace

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
  if (outcome.from < kVersionOfFirstYears) {
    out.flush();
    FirstYears years;
    RunWithDatabase(engines, url, [&] { years = GiveFirstYears(); });
    TellFirstYears(years, out);
  }
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
