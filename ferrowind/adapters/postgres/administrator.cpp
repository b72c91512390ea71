#include "ferrowind/adapters/postgres/administrator.h"

#include <string>

#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/adapters/postgres/schema_version.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::postgres {

void RequireAdministrator(ServerConnection& connection) {
  // Any schema in front of the system's could have other functions and tables of these names.
  const auto lacking =
      ReadRecordSet(connection
                        .Query("SELECT pg_catalog.quote_ident(current_user) FROM pg_catalog.pg_roles"
                               " WHERE rolname OPERATOR(pg_catalog.=) 'ferrowind_owner'"
                               " AND NOT pg_catalog.pg_has_role(oid, 'USAGE')")
                        .get());
  if (lacking->Eof()) return;
  throw platform::Failure(platform::failure_number::kInvalidArgument,
                          connection.DatabaseName() + " is administered by members of ferrowind_owner, and " +
                              platform::ToText(lacking->Cell(lacking->BookmarkAt(0), 0)) + " is none");
}

void RequireAdministratorOf(const std::string& connection_string) {
  platform::WithFailuresOnly([&] {
    ServerConnection connection(connection_string);
    RequireCalendarDatabase(connection);
    RequireAdministrator(connection);
  });
}

}  // namespace ferrowind::postgres
