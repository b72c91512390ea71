#include "ferrowind/adapters/postgres/schema_version.h"

#include "ferrowind/adapters/content/database_status.h"
#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

#include "database/postgres/embedded_sql.h"

namespace ferrowind::postgres {
namespace {

platform::Value Answer(ServerConnection& connection, const char* question) {
  const auto rows = ReadRecordSet(connection.Query(question).get(), 1);
  return rows->Eof() ? platform::Value() : rows->Cell(rows->CurrentBookmark(), 0);
}

}  // namespace

const std::vector<content::UpgradeScript>& DeliveredUpgrades() {
  static const std::vector<content::UpgradeScript> scripts = {
      {2, embedded::kPostgresUpgradeToHistory},           {3, embedded::kPostgresUpgradeToPlans},
      {4, embedded::kPostgresUpgradeToFirstYears},        {5, embedded::kPostgresUpgradeToGuardedRecords},
      {6, embedded::kPostgresUpgradeToBusinessDays},      {7, embedded::kPostgresUpgradeToQuickerClosedDays},
      {8, embedded::kPostgresUpgradeToDaysOfEachCurrency}};
  return scripts;
}

std::int64_t DeliveredVersion() { return DeliveredUpgrades().back().version; }

void RequireCalendarDatabase(ServerConnection& connection) {
  if (!Answer(connection, "SELECT to_regnamespace('ferrowind')::text").IsEmpty()) return;
  throw platform::Failure(platform::failure_number::kInvalidArgument,
                          connection.DatabaseName() + " is no calendar database");
}

std::int64_t SchemaVersionOf(ServerConnection& connection) {
  return platform::ToInt32(Answer(connection, "SELECT Version FROM ferrowind.SchemaVersion"));
}

void RequireDeliveredVersion(ServerConnection& connection) {
  content::RequireSchemaVersion(connection.DatabaseName(), SchemaVersionOf(connection), DeliveredVersion());
}

}  // namespace ferrowind::postgres
