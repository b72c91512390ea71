// Loading the business days of all calendars of a file against reading the rows of its days one by one.

#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>

#include <sqlite3.h>

#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/loading/day_loader.h"
#include "ferrowind/platform/database/engine_registry.h"

#include "bench/measurement.h"
#include "bench/temporary_folder.h"

namespace {

using ferrowind::bench::Benchmark;
using ferrowind::bench::KeepResult;

constexpr std::size_t kCalendars = std::size_t{26} * 50;

/// Twenty-six currencies of fifty years, their weekends closed.
constexpr const char* kFill = R"sql(
INSERT INTO CldHoliday (ID2, Name1, TID1, WD) VALUES (2, 'Weekend', 2, 1);
WITH RECURSIVE Year (Y) AS (SELECT 2000 UNION ALL SELECT Y + 1 FROM Year WHERE Y < 2049)
INSERT INTO CldCalendar SELECT CcyID, Y FROM (SELECT CcyID FROM DicCcy WHERE CcyType = 0 LIMIT 26), Year;
INSERT INTO CldDay
SELECT k.ID1, k.Year1, d.Day1, d.Date, iif(d.Weekday IN ('0', '6'), 2, 1), iif(d.Weekday IN ('0', '6'), 2, NULL), NULL
FROM CldCalendar k JOIN (
  SELECT y.Year1, n.Day1, date(y.Year1 || '-01-01', (n.Day1 - 1) || ' days') AS Date,
    strftime('%w', y.Year1 || '-01-01', (n.Day1 - 1) || ' days') AS Weekday
  FROM (SELECT DISTINCT Year1 FROM CldCalendar) y
    JOIN YearDay n ON n.Day1 <= CAST(strftime('%j', y.Year1 || '-12-31') AS INTEGER)
) d ON d.Year1 = k.Year1;
)sql";

/// A connection as a program that knows nothing of Ferrowind opens it.
class RawDatabase {
 public:
  explicit RawDatabase(const std::string& path) {
    if (sqlite3_open(path.c_str(), &database_) != SQLITE_OK) throw std::runtime_error("cannot open " + path);
  }
  RawDatabase(const RawDatabase&) = delete;
  RawDatabase& operator=(const RawDatabase&) = delete;
  ~RawDatabase() { sqlite3_close(database_); }

  /// Reads every day, in the order of the calendars, and adds up what is in it.
  [[nodiscard]] std::size_t ReadDays() {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(database_, "SELECT ID1, Year1, Day1, TID1 FROM CldDay ORDER BY ID1, Year1, Day1", -1,
                       &statement, nullptr);
    std::size_t sum = 0;
    while (sqlite3_step(statement) == SQLITE_ROW) {
      for (int column = 0; column < 4; ++column) {
        sum += static_cast<std::size_t>(sqlite3_column_int(statement, column));
      }
    }
    sqlite3_finalize(statement);
    return sum;
  }

 private:
  sqlite3* database_ = nullptr;
};

void Measure(const Benchmark& benchmark) {
  const ferrowind::bench::TemporaryFolder folder;
  const std::string path = folder.File();
  ferrowind::sqlite::CreateDatabase(path);
  ferrowind::sqlite::DatabaseHandle(path).Execute(kFill);
  ferrowind::platform::EngineRegistry engines;
  engines.Register(ferrowind::sqlite::Engine::kScheme, std::make_shared<ferrowind::sqlite::Engine>());
  const std::string url = "sqlite:" + path;
  const auto load = [&] {
    const ferrowind::loading::DayLoader loader(engines, url);
    const std::size_t count = loader.Current()->calendars.Codes().size();
    if (count * 50 != kCalendars) throw std::runtime_error("there are not all calendars");
    KeepResult(count);
  };
  benchmark.Compare("load 26 currencies of 50 years, against reading the rows raw", 1.5, {load},
                    {[&] { KeepResult(RawDatabase(path).ReadDays()); }});
  ferrowind::loading::DayLoader loader(engines, url);
  benchmark.Compare("reload what has not changed, against reading the rows raw", 1.5,
                    {[&] { KeepResult(loader.Reload().Any() ? 1 : 0); }},
                    {[&] { KeepResult(RawDatabase(path).ReadDays()); }});
}

}  // namespace

int main(int argc, char** argv) { return ferrowind::bench::RunBenchmark(argc, argv, Measure); }
