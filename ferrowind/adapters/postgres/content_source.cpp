#include "ferrowind/adapters/postgres/content_source.h"

#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/adapters/postgres/row_stream.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::postgres {
namespace {

/// A type that record sets do not have is read as the text that a file holds in its place.
std::string Readable(std::string_view column) {
  if (column == "Moment") {
    return R"(to_char(Moment AT TIME ZONE 'UTC', 'YYYY-MM-DD"T"HH24:MI:SS.MS"Z"') AS Moment)";
  }
  if (column == "Parameters" || column == "OldRow" || column == "NewRow") {
    return std::string(column) + "::text AS " + std::string(column);
  }
  return std::string(column);
}

}  // namespace

std::string ServerSource::NameOf(const content::Table& table) const {
  return schema_ + "." + std::string(table.name);
}

std::string ServerSource::Identity() {
  return platform::WithFailuresOnly([&] {
    // No two servers start in the same microsecond.
    const auto rows = ReadRecordSet(
        connection_
            .Query("SELECT extract(epoch FROM pg_postmaster_start_time())::text || ' ' || oid AS identity"
                   " FROM pg_catalog.pg_database WHERE datname = current_database()")
            .get());
    return "server " + platform::ToText((*rows)["identity"]);
  });
}

std::int64_t ServerSource::CountRows(const content::Table& table) {
  return platform::WithFailuresOnly([&] {
    const auto rows =
        ReadRecordSet(connection_.Query("SELECT count(*) AS count FROM " + NameOf(table)).get());
    const platform::Value& count = (*rows)["count"];
    if (const auto* const number = count.If<std::int64_t>()) return *number;
    throw platform::TypeMismatch();
  });
}

std::unique_ptr<content::RowReader> ServerSource::Rows(const content::Table& table, content::RowOrder order) {
  return platform::WithFailuresOnly([&] {
    std::string query = "SELECT " + ColumnList(table, Readable) + " FROM " + NameOf(table);
    if (order == content::RowOrder::kByKey) query += " ORDER BY " + KeyList(table);
    return std::make_unique<RowStream>(connection_, query, table.columns.size());
  });
}

}  // namespace ferrowind::postgres
