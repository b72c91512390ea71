#include "host/admin/check_command.h"

#include <optional>
#include <ostream>
#include <string>

#include "ferrowind/adapters/chain/seal.h"
#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/engine.h"

#include "host/admin/calendar_warnings.h"
#include "host/admin/long_texts.h"
#include "host/admin/text_escapes.h"

namespace ferrowind::host {

ExitStatus CheckCommand::Run(const platform::EngineRegistry& engines, std::ostream& out) const {
  // Says that there is no such engine, where an adapter can only say that it is not its own.
  (void)engines.EngineFor(url);
  std::optional<chain::Seal> sealed;
  if (seal) sealed = chain::Seal::Of(*seal);
  const auto faults = postgres::IsConnectionString(url) ? postgres::CheckDatabase(url, sealed)
                                                        : sqlite::CheckDatabase(sqlite::PathIn(url), sealed);
  for (const std::string& fault : faults) out << OneLine(fault) << '\n';
  if (!faults.empty()) return ExitStatus::kNotDone;
  if (postgres::IsConnectionString(url)) {
    for (const std::string& doubt : postgres::SettingsInDoubt(url)) {
      out << "Warning: " << OneLine(doubt) << ".\n";
    }
  }
  for (const std::string& text : LongTextsIn(url)) out << "Warning: " << OneLine(text) << ".\n";
  for (const std::string& warning : CalendarWarnings(engines, url).Sentences()) {
    out << "Warning: " << OneLine(warning) << ".\n";
  }
  out << "The database is in order.\n";
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
