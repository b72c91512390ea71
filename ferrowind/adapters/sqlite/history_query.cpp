#include "ferrowind/adapters/sqlite/history_query.h"

#include "ferrowind/adapters/content/database_status.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/delivered_schema.h"
#include "ferrowind/adapters/sqlite/procedure_catalogue.h"
#include "ferrowind/adapters/sqlite/result_reader.h"
#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/adapters/sqlite/transaction.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {
namespace {

using platform::Value;

constexpr std::string_view kEntries =
    "SELECT h.EntryID, h.Moment, h.UserName, h.ProcedureName, c.Ccy, h.Year1, h.Parameters, h.ReturnValue,"
    " h.RowsChanged"
    " FROM CldHistory h LEFT JOIN DicCcy c ON c.CcyID = h.ID1"
    " WHERE (?1 IS NULL OR h.Moment >= ?1) AND (?2 IS NULL OR c.Ccy = ?2 AND h.Year1 = ?3)"
    " ORDER BY h.EntryID";

void RequireCurrency(const DatabaseHandle& database, const std::string& currency) {
  const Value code(currency);
  Statement ask(database, "SELECT 1 FROM DicCcy WHERE Ccy = ?1");
  ask.Bind(1, code);
  if (ask.Step()) return;
  throw platform::Failure(platform::failure_number::kInvalidArgument,
                          "The database " + database.Path() + " knows no currency " + currency);
}

}  // namespace

std::shared_ptr<platform::RecordSet> ReadHistory(const std::string& path,
                                                 const content::HistoryFilter& filter) {
  return platform::WithFailuresOnly([&] {
    DatabaseHandle database(path);
    const ProcedureCatalogue must_be_a_calendar_database(database);
    const Transaction transaction(database, Transaction::Kind::kReading);
    content::RequireSchemaVersion("The database " + database.Path(), SchemaVersionOf(database),
                                  DeliveredUpgrades().back().version);
    const Value since = filter.since ? Value(*filter.since) : Value();
    Value currency;
    Value year;
    if (filter.calendar) {
      RequireCurrency(database, filter.calendar->currency);
      currency = filter.calendar->currency;
      year = filter.calendar->year;
    }
    Statement entries(database, kEntries);
    entries.Bind(1, since);
    entries.Bind(2, currency);
    entries.Bind(3, year);
    return ReadRecordSet(entries);
  });
}

}  // namespace ferrowind::sqlite
