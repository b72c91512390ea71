#include "ferrowind/adapters/postgres/delivered_objects.h"

#include <string>
#include <string_view>
#include <vector>

#include "database/postgres/embedded_sql.h"

namespace ferrowind::postgres {

namespace {

std::vector<std::string_view> Functions() {
  return {embedded::kPostgresHistoryEntry,  embedded::kPostgresRowContent,
          embedded::kPostgresKeptRows,      embedded::kPostgresJsonLists,
          embedded::kPostgresPlannedDays,   embedded::kPostgresBookRules,
          embedded::kPostgresFingerprint,   embedded::kPostgresMomentFrom,
          embedded::kPostgresCurrencyCanBe, embedded::kPostgresUndo,
          embedded::kPostgresBusinessDays,  embedded::kPostgresDeliveredConventions,
          embedded::kPostgresValueDates};
}

struct Procedure {
  std::string_view name;
  std::string_view script;
};

std::vector<Procedure> Procedures() {
  return {
      {"CldAllInfo", embedded::kPostgresCldAllInfo},
      {"CldGetMain", embedded::kPostgresCldGetMain},
      {"CldIUMain", embedded::kPostgresCldIUMain},
      {"CldIUCelebrate", embedded::kPostgresCldIUCelebrate},
      {"CldGetBook", embedded::kPostgresCldGetBook},
      {"CldIUBook", embedded::kPostgresCldIUBook},
      {"CldGetFingerprint", embedded::kPostgresCldGetFingerprint},
      {"CldApplyPlan", embedded::kPostgresCldApplyPlan},
      {"CldUndo", embedded::kPostgresCldUndo},
      {"CldGetHistory", embedded::kPostgresCldGetHistory},
      {"CldGetAsOf", embedded::kPostgresCldGetAsOf},
      {"CldGetClosedDays", embedded::kPostgresCldGetClosedDays},
      {"CldGetMarkedDays", embedded::kPostgresCldGetMarkedDays},
      {"CldIUCurrency", embedded::kPostgresCldIUCurrency},
      {"CldGetCurrencies", embedded::kPostgresCldGetCurrencies},
      {"CldGetContent", embedded::kPostgresCldGetContent},
      {"CldIUConvention", embedded::kPostgresCldIUConvention},
      {"CldGetConventions", embedded::kPostgresCldGetConventions},
  };
}

/// However often a name is in use: a leftover beside the new one would make its calls fail.
void DropProcedures(ServerConnection& connection) {
  std::string names;
  for (const Procedure& procedure : Procedures()) {
    names += (names.empty() ? "lower('" : ", lower('") + std::string(procedure.name) + "')";
  }
  connection.RunScript(
      "DO $$ DECLARE old regprocedure; BEGIN FOR old IN SELECT oid FROM pg_catalog.pg_proc"
      " WHERE pronamespace = 'ferrowind'::regnamespace AND prokind = 'p' AND proname IN (" +
      names + ") LOOP EXECUTE format('DROP PROCEDURE %s', old); END LOOP; END $$");
}

void CreateRoutines(ServerConnection& connection) {
  for (const std::string_view script : Functions()) connection.RunScript(std::string(script));
  for (const Procedure& procedure : Procedures()) connection.RunScript(std::string(procedure.script));
}

}  // namespace

std::vector<std::string_view> DeliveredScripts() {
  std::vector<std::string_view> scripts = {embedded::kPostgresSchema};
  for (const std::string_view script : Functions()) scripts.push_back(script);
  for (const Procedure& procedure : Procedures()) scripts.push_back(procedure.script);
  return scripts;
}

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
