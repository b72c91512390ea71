// Copies of 5,000 calendars into a server, with everything that belongs to them: the database made, the rows
// read, written, compared with the original and committed; against the server's own tool, which restores the
// same content from its dump. And out of a server: all rows read as values, against the server's own export
// of the same tables.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include <libpq-fe.h>

#include "ferrowind/adapters/content/content_copy.h"
#include "ferrowind/adapters/content/content_source.h"
#include "ferrowind/adapters/postgres/database_content.h"
#include "ferrowind/adapters/sqlite/database_content.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/database_handle.h"

#include "bench/measurement.h"
#include "bench/own_server.h"
#include "bench/temporary_folder.h"

namespace {

using ferrowind::bench::Benchmark;
using ferrowind::bench::KeepResult;
namespace content = ferrowind::content;
namespace postgres = ferrowind::postgres;
namespace sqlite = ferrowind::sqlite;

/// A copy takes seconds.
constexpr std::size_t kRuns = 5;

/// The calendars of 50 currencies for 100 years, with their weekends, and the history of their creation.
constexpr const char* kCalendars = R"sql(
BEGIN;
INSERT INTO CldHoliday (ID2, Name1, TID1, WD) VALUES (2, 'Sunday', 2, 1), (3, 'Saturday', 2, 7);
INSERT INTO CldCalendar (ID1, Year1)
  WITH RECURSIVE year (n) AS (SELECT 1950 UNION ALL SELECT n + 1 FROM year WHERE n < 2049)
  SELECT CcyID, n FROM (SELECT CcyID FROM DicCcy WHERE CcyType = 0 ORDER BY CcyID LIMIT 50), year;
INSERT INTO CldDay (ID1, Year1, Day1, ODate, TID1, ID2, Comment)
  WITH RECURSIVE day (n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM day WHERE n < 366),
  dated AS (SELECT ID1, Year1, n, date(Year1 || '-01-01', (n - 1) || ' days') AS d FROM CldCalendar, day)
  SELECT ID1, Year1, n, d, CASE WHEN strftime('%w', d) IN ('0', '6') THEN 2 ELSE 1 END,
    CASE strftime('%w', d) WHEN '0' THEN 2 WHEN '6' THEN 3 END, CASE n WHEN 1 THEN 'Stock-taking' END
  FROM dated WHERE d < (Year1 + 1) || '-01-01';
UPDATE CldDay SET TID1 = 1, ID2 = 1 WHERE Day1 = 1;
INSERT INTO CldHistory (EntryID, Moment, UserName, ProcedureName, ID1, Year1, Parameters, ReturnValue, RowsChanged,
    ChainPosition, Previous, Hash)
  SELECT row_number() OVER (ORDER BY ID1, Year1), '2026-11-22T10:20:30.123Z', 'anna', 'CldIUMain', ID1, Year1,
    json_object('ID1', ID1, 'Year1', Year1, 'TID1', NULL, 'ID2', NULL, 'Day1', NULL, 'ODate', NULL, 'Comment', NULL), 0, 366,
    1, '', ''
  FROM CldCalendar;
INSERT INTO CldHistoryRow (EntryID, RowNumber, TableName, ID1, Year1)
  SELECT EntryID, 1, 'CldCalendar', ID1, Year1 FROM CldHistory;
COMMIT)sql";

void MakeFile(const std::string& path) {
  sqlite::CreateDatabase(path);
  sqlite::DatabaseHandle(path).Execute(kCalendars);
}

struct ConnectionEnd {
  void operator()(PGconn* connection) const { PQfinish(connection); }
};
using Link = std::unique_ptr<PGconn, ConnectionEnd>;

Link Connect(const std::string& uri) {
  Link link(PQconnectdb(uri.c_str()));
  if (PQstatus(link.get()) != CONNECTION_OK) throw std::runtime_error(PQerrorMessage(link.get()));
  return link;
}

void Execute(PGconn* connection, const std::string& sql, ExecStatusType expected = PGRES_COMMAND_OK) {
  PGresult* const result = PQexec(connection, sql.c_str());
  const ExecStatusType status = PQresultStatus(result);
  PQclear(result);
  if (status != expected) throw std::runtime_error(PQerrorMessage(connection));
}

void Run(const std::string& command) {
  if (std::system(command.c_str()) != 0) throw std::runtime_error("failed: " + command);
}

/// A server on which databases come and go.
class Server {
 public:
  explicit Server(std::string uri) : uri_(std::move(uri)) {}

  [[nodiscard]] std::string UriOf(const std::string& database) const {
    return uri_.substr(0, uri_.rfind('/') + 1) + database;
  }
  void MakeEmpty(const std::string& database) const {
    const Link link = Connect(uri_);
    Execute(link.get(), "SET client_min_messages = warning");
    Execute(link.get(), "DROP DATABASE IF EXISTS " + database);
    Execute(link.get(), "CREATE DATABASE " + database + " TEMPLATE template0");
    // What the last run left to write would be written during the next.
    Execute(link.get(), "CHECKPOINT");
  }

 private:
  std::string uri_;
};

/// Throws unless the calendars are those that are to be measured.
void RequireCalendars(const std::string& uri) {
  const auto status = postgres::ReadStatus(uri);
  if (status.calendars != 5000 || status.days != 50 * 36525) {
    throw std::runtime_error("there are " + std::to_string(status.calendars) + " calendars with " +
                             std::to_string(status.days) + " days");
  }
}

void CopyIn(const std::string& file, const std::string& uri) {
  const auto source = sqlite::OpenContent(file);
  postgres::FillDatabase(uri, [&](content::Target& target) { content::CopyContent(*source, target); });
}

/// The number of values that are there.
std::size_t ReadOut(const std::string& uri) {
  const auto source = postgres::OpenContent(uri);
  std::size_t values = 0;
  for (const content::Table& table : content::Tables()) {
    const auto rows = source->Rows(table, content::RowOrder::kAny);
    for (content::Row row; rows->Next(row);) {
      for (const auto& value : row) values += value.IsEmpty() ? 0U : 1U;
    }
  }
  return values;
}

/// The number of bytes.
std::size_t Export(const std::string& uri) {
  const Link link = Connect(uri);
  std::size_t bytes = 0;
  for (const content::Table& table : content::Tables()) {
    Execute(link.get(), "COPY ferrowind." + std::string(table.name) + " TO STDOUT", PGRES_COPY_OUT);
    char* row = nullptr;
    int size = 0;
    while ((size = PQgetCopyData(link.get(), &row, 0)) > 0) {
      bytes += static_cast<std::size_t>(size);
      PQfreemem(row);
    }
    if (size != -1) throw std::runtime_error(PQerrorMessage(link.get()));
    while (PGresult* const end = PQgetResult(link.get())) PQclear(end);
  }
  return bytes;
}

void Measure(const Benchmark& benchmark, const Server& server) {
  const ferrowind::bench::TemporaryFolder folder;
  const std::string file = folder.File();
  const std::string dump = file + ".dump";
  const std::string copied = server.UriOf("copied");
  MakeFile(file);
  server.MakeEmpty("copied");
  CopyIn(file, copied);
  RequireCalendars(copied);
  Run("pg_dump -Fc -f '" + dump + "' '" + copied + "'");

  benchmark.Compare(
      "5,000 calendars copied into a server, peer: pg_restore", 2.0,
      {.run = [&] { CopyIn(file, copied); }, .prepare = [&] { server.MakeEmpty("copied"); }},
      {.run = [&] { Run("pg_restore -1 -d '" + server.UriOf("restored") + "' '" + dump + "'"); },
       .prepare = [&] { server.MakeEmpty("restored"); }},
      kRuns);
  benchmark.Compare("5,000 calendars read out of a server, peer: COPY TO", 1.2,
                    {.run = [&] { KeepResult(ReadOut(copied)); }},
                    {.run = [&] { KeepResult(Export(copied)); }}, kRuns);
}

}  // namespace

int main(int argc, char** argv) {
  return ferrowind::bench::RunBenchmark(argc, argv, [&](const Benchmark& benchmark) {
    Measure(benchmark, Server(ferrowind::bench::OwnServer(argv)));
  });
}
