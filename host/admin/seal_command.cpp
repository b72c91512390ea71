#include "host/admin/seal_command.h"

#include <ostream>

#include "ferrowind/adapters/chain/seal.h"
#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/engine.h"

#include "host/admin/text_escapes.h"

namespace ferrowind::host {

ExitStatus SealCommand::Run(const platform::EngineRegistry& engines, std::ostream& out,
                            std::ostream& errors) const {
  // Says that there is no such engine, where an adapter can only say that it is not its own.
  (void)engines.EngineFor(url);
  const chain::SealedHistory sealed = postgres::IsConnectionString(url)
                                          ? postgres::SealDatabase(url)
                                          : sqlite::SealDatabase(sqlite::PathIn(url));
  out << sealed.seal.Text() << '\n';
  out.flush();
  errors << "Entries sealed: " << sealed.entries;
  if (sealed.entries != 0) {
    errors << ", the newest is number " << sealed.seal.entry << " of " << OneLine(sealed.newest);
  }
  errors << ".\n";
  if (!sealed.since.empty()) {
    errors << "Those before " << OneLine(sealed.since)
           << " were chained by the upgrade of then; it proves nothing of the time before.\n";
  }
  errors << "Keep the seal where nobody who could change the database can reach it.\n";
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
