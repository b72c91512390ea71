#include "ferrowind/adapters/postgres/delivered_objects.h"

#include <string>
#include <string_view>

#include "ferrowind/adapters/postgres/delivered_scripts.h"

#include "database/postgres/embedded_sql.h"

namespace ferrowind::postgres {
namespace {

/// However often a name is in use: a leftover beside the new one would make its calls fail.
void DropProcedures(ServerConnection& connection) {
  std::string names;
  for (const DeliveredProcedure& procedure : DeliveredProcedures()) {
    names += (names.empty() ? "lower('" : ", lower('") + std::string(procedure.name) + "')";
  }
  connection.RunScript(
      "DO $$ DECLARE old regprocedure; BEGIN FOR old IN SELECT oid FROM pg_catalog.pg_proc"
      " WHERE pronamespace = 'ferrowind'::regnamespace AND prokind = 'p' AND proname IN (" +
      names + ") LOOP EXECUTE format('DROP PROCEDURE %s', old); END LOOP; END $$");
}

void CreateRoutines(ServerConnection& connection) {
  for (const std::string_view script : DeliveredFunctions()) connection.RunScript(std::string(script));
  for (const DeliveredProcedure& procedure : DeliveredProcedures())
    connection.RunScript(std::string(procedure.script));
}

}  // namespace

void CreateDeliveredSchema(ServerConnection& connection) {
  for (const std::string_view script : DeliveredScripts()) connection.RunScript(std::string(script));
}

void ReplaceRoutines(ServerConnection& connection) {
  DropProcedures(connection);
  CreateRoutines(connection);
}

void GiveDeliveredRights(ServerConnection& connection) {
  connection.RunScript(std::string(embedded::kPostgresRights));
}

}  // namespace ferrowind::postgres
