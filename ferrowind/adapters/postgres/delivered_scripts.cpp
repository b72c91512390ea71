#include "ferrowind/adapters/postgres/delivered_scripts.h"

#include "database/postgres/embedded_sql.h"

namespace ferrowind::postgres {

std::vector<std::string_view> DeliveredFunctions() {
  return {embedded::kPostgresHistoryEntry,  embedded::kPostgresRowContent,
          embedded::kPostgresKeptRows,      embedded::kPostgresJsonLists,
          embedded::kPostgresPlannedDays,   embedded::kPostgresBookRules,
          embedded::kPostgresFingerprint,   embedded::kPostgresMomentFrom,
          embedded::kPostgresCurrencyCanBe, embedded::kPostgresUndo,
          embedded::kPostgresBusinessDays,  embedded::kPostgresDeliveredConventions,
          embedded::kPostgresValueDates};
}

std::vector<DeliveredProcedure> DeliveredProcedures() {
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

std::vector<std::string_view> DeliveredScripts() {
  std::vector<std::string_view> scripts = {embedded::kPostgresSchema};
  for (const std::string_view script : DeliveredFunctions()) scripts.push_back(script);
  for (const DeliveredProcedure& procedure : DeliveredProcedures()) scripts.push_back(procedure.script);
  return scripts;
}

}  // namespace ferrowind::postgres
