// The review of a database, all included, from the calls that read it to the sorted findings, against the
// calls of the database's own library that read the same rows.

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>

#include <sqlite3.h>

#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/planning/database_review.h"

#include "bench/measurement.h"
#include "bench/planned_calendars.h"
#include "bench/temporary_folder.h"
#include "host/delivery/delivered_tables.h"

namespace {

using ferrowind::bench::Benchmark;
using ferrowind::bench::KeepResult;
using ferrowind::bench::TemporaryFolder;

constexpr int kFirstYear = 2015;
constexpr int kLastYear = 2064;
const ferrowind::platform::Date kToday(2026, 11, 22);

void Require(bool is_true, sqlite3* database) {
  if (!is_true) throw std::runtime_error(sqlite3_errmsg(database));
}

/// Reads every row and cell that the review reads of days, by the same statement. Returns the number of rows.
std::size_t ReadByPeer(const std::string& path) {
  sqlite3* database = nullptr;
  Require(sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK, database);
  sqlite3_stmt* statement = nullptr;
  Require(sqlite3_prepare_v2(database,
                             "SELECT d.ID1, d.Year1, d.Day1, d.TID1, d.ID2, d.Comment"
                             " FROM CldCalendar k CROSS JOIN CldDay d ON d.ID1 = k.ID1 AND d.Year1 = k.Year1"
                             " WHERE +k.Year1 BETWEEN ?1 AND ?2 AND d.ID2 IS NOT NULL"
                             " ORDER BY k.ID1, k.Year1, d.Day1",
                             -1, &statement, nullptr) == SQLITE_OK,
          database);
  sqlite3_bind_int(statement, 1, kFirstYear);
  sqlite3_bind_int(statement, 2, kLastYear);
  std::size_t rows = 0;
  std::size_t sum = 0;
  for (; sqlite3_step(statement) == SQLITE_ROW; ++rows) {
    for (int column = 0; column < sqlite3_column_count(statement); ++column) {
      if (sqlite3_column_type(statement, column) == SQLITE_INTEGER) {
        sum += static_cast<std::size_t>(sqlite3_column_int64(statement, column));
      } else if (sqlite3_column_text(statement, column) != nullptr) {
        sum += static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
      }
    }
  }
  KeepResult(sum);
  sqlite3_finalize(statement);
  sqlite3_close(database);
  return rows;
}

std::size_t Review() {
  const auto review = ferrowind::planning::ReviewDatabase(ferrowind::host::DeliveredDateTables(), kToday, {});
  if (review.Worst() && *review.Worst() >= ferrowind::almanac::FindingLevel::kWarning) {
    throw std::runtime_error("The calendars are not as planned");
  }
  return review.calendars;
}

void MeasureReview(const Benchmark& benchmark, const std::string& path) {
  ferrowind::bench::MakePlannedCalendars(kFirstYear, kLastYear);
  benchmark.Compare("review of 26 currencies x 50 years, peer: raw sqlite3 calls", 1.5,
                    {.run = [] { KeepResult(Review()); }}, {.run = [&] { KeepResult(ReadByPeer(path)); }});
}

}  // namespace

int main(int argc, char** argv) {
  return ferrowind::bench::RunBenchmark(argc, argv, [](const Benchmark& benchmark) {
    const TemporaryFolder folder;
    ferrowind::sqlite::CreateDatabase(folder.File());
    ferrowind::bench::RunWithFile(folder.File(), [&] { MeasureReview(benchmark, folder.File()); });
  });
}
