#include "ferrowind/adapters/sqlite/delivered_schema.h"

#include <string>
#include <string_view>

#include "ferrowind/adapters/chain/chain_start.h"
#include "ferrowind/adapters/content/database_status.h"
#include "ferrowind/adapters/sqlite/content_source.h"
#include "ferrowind/adapters/sqlite/procedure_catalogue.h"
#include "ferrowind/adapters/sqlite/statement.h"

#include "database/seed/embedded_sql.h"
#include "database/sqlite/embedded_sql.h"

namespace ferrowind::sqlite {

std::vector<sql_script::ProcedureDefinition> DeliveredProcedures() {
  std::vector<sql_script::ProcedureDefinition> procedures;
  for (const std::string_view source :
       {embedded::kSqliteCldAllInfo, embedded::kSqliteCldGetMain, embedded::kSqliteCldIUMain,
        embedded::kSqliteCldIUCelebrate, embedded::kSqliteCldGetBook, embedded::kSqliteCldIUBook,
        embedded::kSqliteCldGetFingerprint, embedded::kSqliteCldApplyPlan, embedded::kSqliteCldUndo,
        embedded::kSqliteCldGetHistory, embedded::kSqliteCldGetAsOf, embedded::kSqliteCldGetClosedDays,
        embedded::kSqliteCldGetMarkedDays, embedded::kSqliteCldIUCurrency, embedded::kSqliteCldGetCurrencies,
        embedded::kSqliteCldGetContent, embedded::kSqliteCldIUConvention,
        embedded::kSqliteCldGetConventions}) {
    procedures.push_back(sql_script::ParseProcedureSource(source));
  }
  return procedures;
}

std::string_view DeliveredTables() { return embedded::kSqliteSchema; }

void FillWithDeliveredSchema(DatabaseHandle& database) {
  for (const std::string_view script :
       {DeliveredTables(), std::string_view(embedded::kBaseData), std::string_view(embedded::kCurrencies)}) {
    database.Execute(std::string(script).c_str());
  }
  for (const auto& procedure : DeliveredProcedures()) AddToCatalogue(database, procedure);
  FileTarget content(database, true);
  chain::WriteChainStart(content, 0, {});
}

const std::vector<content::UpgradeScript>& DeliveredUpgrades() {
  static const std::vector<content::UpgradeScript> scripts = {
      {2, embedded::kSqliteUpgradeToHistory},           {3, embedded::kSqliteUpgradeToRuleBooks},
      {4, embedded::kSqliteUpgradeToFirstYears},        {5, embedded::kSqliteUpgradeToGuardedRecords},
      {6, embedded::kSqliteUpgradeToBusinessDays},      {7, embedded::kSqliteUpgradeToQuickerClosedDays},
      {8, embedded::kSqliteUpgradeToDaysOfEachCurrency}};
  return scripts;
}

std::int64_t SchemaVersionOf(const DatabaseHandle& database) {
  Statement ask(database, "PRAGMA user_version");
  return ask.Step() ? ask.Integer(0) : 0;
}

void RequireDeliveredVersion(const DatabaseHandle& database) {
  content::RequireSchemaVersion("The database " + database.Path(), SchemaVersionOf(database),
                                DeliveredUpgrades().back().version);
}

}  // namespace ferrowind::sqlite
