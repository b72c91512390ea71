#include "ferrowind/adapters/postgres/history_query.h"

#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/adapters/postgres/schema_version.h"
#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::postgres {
namespace {

/// Every parameter is a text, empty when nothing is asked of it.
constexpr const char* kEntries =
    "SELECT h.EntryID AS \"EntryID\","
    " to_char(h.Moment AT TIME ZONE 'UTC', 'YYYY-MM-DD\"T\"HH24:MI:SS.MS\"Z\"') AS \"Moment\","
    " h.UserName AS \"UserName\", h.ProcedureName AS \"ProcedureName\", c.Ccy AS \"Ccy\", h.Year1 AS "
    "\"Year1\","
    " h.Parameters::text AS \"Parameters\", h.ReturnValue AS \"ReturnValue\", h.RowsChanged AS "
    "\"RowsChanged\""
    " FROM ferrowind.CldHistory h LEFT JOIN ferrowind.DicCcy c ON c.CcyID = h.ID1"
    " WHERE ($1 = '' OR h.Moment >= nullif($1, '')::timestamptz)"
    "  AND ($2 = '' OR c.Ccy = $2 AND h.Year1 = nullif($3, '')::integer)"
    " ORDER BY h.EntryID";

void RequireCurrency(ServerConnection& connection, const std::string& currency) {
  const auto found = connection.Query("SELECT 1 FROM ferrowind.DicCcy WHERE Ccy = $1", {currency});
  if (PQntuples(found.get()) != 0) return;
  throw platform::Failure(platform::failure_number::kInvalidArgument,
                          connection.DatabaseName() + " knows no currency " + currency);
}

}  // namespace

std::shared_ptr<platform::RecordSet> ReadHistory(const std::string& connection_string,
                                                 const content::HistoryFilter& filter) {
  return platform::WithFailuresOnly([&] {
    ServerConnection connection(connection_string);
    RequireCalendarDatabase(connection);
    RequireDeliveredVersion(connection);
    std::vector<std::string> wanted = {filter.since.value_or(""), "", ""};
    if (filter.calendar) {
      RequireCurrency(connection, filter.calendar->currency);
      wanted[1] = filter.calendar->currency;
      wanted[2] = std::to_string(filter.calendar->year);
    }
    return ReadRecordSet(connection.Query(kEntries, wanted).get());
  });
}

}  // namespace ferrowind::postgres
