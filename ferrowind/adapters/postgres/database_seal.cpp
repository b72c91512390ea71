#include <cstdint>
#include <string>

#include "ferrowind/adapters/chain/chain_heads.h"
#include "ferrowind/adapters/postgres/administrator.h"
#include "ferrowind/adapters/postgres/content_source.h"
#include "ferrowind/adapters/postgres/database_content.h"
#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/adapters/postgres/schema_version.h"
#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/adapters/postgres/table_locks.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::postgres {
namespace {

/// The number of the newest entry at a moment when no call is at work that has taken a number and may still
/// be undone or done: from then on only greater ones come.
std::int64_t NewestEntry(const std::string& connection_string) {
  ServerConnection connection(connection_string);
  RequireCalendarDatabase(connection);
  RequireAdministrator(connection);
  connection.RunScript("BEGIN ISOLATION LEVEL READ COMMITTED");
  RequireDeliveredVersion(connection);
  KeepOut(connection, KeptOut::kChangingCalls);
  const auto newest = ReadRecordSet(
      connection.Query("SELECT coalesce(max(EntryID), 0)::text AS newest FROM ferrowind.CldHistory").get());
  connection.RunScript("ROLLBACK");
  return std::stoll(platform::ToText((*newest)["newest"]));
}

}  // namespace

chain::SealedHistory SealDatabase(const std::string& connection_string) {
  return platform::WithFailuresOnly([&] {
    const std::int64_t newest = NewestEntry(connection_string);
    return chain::SealHistory(*OpenContent(connection_string), newest);
  });
}

}  // namespace ferrowind::postgres
