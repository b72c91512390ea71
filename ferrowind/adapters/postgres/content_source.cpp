#include "ferrowind/adapters/postgres/content_source.h"

#include <cstddef>

#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/platform/database/failure_boundary.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::postgres {
namespace {

/// A type that record sets do not have is read as the text that a file holds in its place.
std::string Readable(std::string_view column) {
  if (column == "Moment") {
    return R"(to_char(Moment AT TIME ZONE 'UTC', 'YYYY-MM-DD"T"HH24:MI:SS.MS"Z"') AS Moment)";
  }
  if (column == "Parameters" || column == "OldRow") {
    return std::string(column) + "::text AS " + std::string(column);
  }
  return std::string(column);
}

/// Fetches rows through a cursor of the server, many at a time, so that they are never all in memory.
class CursorReader : public content::RowReader {
 public:
  CursorReader(ServerConnection& connection, std::string cursor, const std::string& query,
               std::size_t columns)
      : connection_(connection), cursor_(std::move(cursor)), columns_(columns) {
    connection_.RunScript("DECLARE " + cursor_ + " NO SCROLL CURSOR FOR " + query);
  }
  CursorReader(const CursorReader&) = delete;
  CursorReader& operator=(const CursorReader&) = delete;
  ~CursorReader() override {
    // Nothing else takes the cursor away before the transaction ends. One that has failed has none any more.
    if (PQtransactionStatus(connection_.Get()) != PQTRANS_INTRANS) return;
    const QueryResult ignored(PQexec(connection_.Get(), ("CLOSE " + cursor_).c_str()));
  }

  bool Next(content::Row& row) override {
    return platform::WithFailuresOnly([&] {
      if (!rows_ || rows_->Eof()) {
        rows_ = ReadRecordSet(connection_.Query("FETCH FORWARD 2000 FROM " + cursor_).get(), columns_);
      }
      if (rows_->Eof()) return false;
      const auto bookmark = rows_->CurrentBookmark();
      row.clear();
      for (std::size_t field = 0; field < rows_->FieldCount(); ++field) {
        row.push_back(rows_->Cell(bookmark, field));
      }
      rows_->MoveNext();
      return true;
    });
  }

 private:
  ServerConnection& connection_;
  std::string cursor_;
  std::size_t columns_;
  std::shared_ptr<platform::RecordSet> rows_;
};

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

std::unique_ptr<content::RowReader> ServerSource::Rows(const content::Table& table) {
  return platform::WithFailuresOnly([&] {
    return std::make_unique<CursorReader>(
        connection_, schema_ + "_" + std::string(table.name),
        "SELECT " + ColumnList(table, Readable) + " FROM " + NameOf(table) + " ORDER BY " + KeyList(table),
        table.columns.size());
  });
}

}  // namespace ferrowind::postgres
