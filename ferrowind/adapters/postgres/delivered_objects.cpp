#include "ferrowind/adapters/postgres/delivered_objects.h"

#include <string>
#include <string_view>

#include "database/postgres/embedded_sql.h"

namespace ferrowind::postgres {

namespace {

/// However often a name is in use: a leftover beside the new one would make its calls fail.
constexpr const char* kDropProcedures = R"sql(
DO $$
DECLARE
  old regprocedure;
BEGIN
  FOR old IN SELECT oid FROM pg_catalog.pg_proc
    WHERE pronamespace = 'ferrowind'::regnamespace AND prokind = 'p'
      AND proname IN ('cldallinfo', 'cldgetmain', 'cldiumain', 'cldiucelebrate')
  LOOP
    EXECUTE format('DROP PROCEDURE %s', old);
  END LOOP;
END $$)sql";

void CreateProcedures(ServerConnection& connection) {
  for (const std::string_view script : {embedded::kPostgresCldAllInfo, embedded::kPostgresCldGetMain,
                                        embedded::kPostgresCldIUMain, embedded::kPostgresCldIUCelebrate}) {
    connection.RunScript(std::string(script));
  }
}

}  // namespace

void CreateDeliveredSchema(ServerConnection& connection) {
  connection.RunScript(std::string(embedded::kPostgresSchema));
  CreateProcedures(connection);
}

void ReplaceProcedures(ServerConnection& connection) {
  connection.RunScript(kDropProcedures);
  CreateProcedures(connection);
}

void GiveDeliveredRights(ServerConnection& connection) {
  connection.RunScript(std::string(embedded::kPostgresRights));
}

}  // namespace ferrowind::postgres
