// A procedure call with everything that belongs to it, from opening the database to the detached record set,
// against the calls of the database's own library that open the file, run the same statement and read all
// cells.

#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>

#include <sqlite3.h>

#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/platform/database/engine_registry.h"

#include "bench/calendar_calls.h"
#include "bench/measurement.h"
#include "bench/temporary_folder.h"
#include "host/session/procedure_session.h"

namespace {

using ferrowind::bench::Benchmark;
using ferrowind::bench::KeepResult;
using ferrowind::bench::kEuro;
using ferrowind::bench::kYear;
using ferrowind::bench::TemporaryFolder;

void Require(bool is_true, sqlite3* database) {
  if (!is_true) throw std::runtime_error(sqlite3_errmsg(database));
}

/// The number of cells.
std::size_t CallPeer(const std::string& path) {
  sqlite3* database = nullptr;
  Require(sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK, database);
  sqlite3_stmt* statement = nullptr;
  Require(
      sqlite3_prepare_v2(database,
                         "SELECT d.ODate, d.TID1, h.Name1, h.Comment AS Comment2, d.Comment, d.ID2, d.Day1"
                         " FROM CldDay d LEFT JOIN CldHoliday h ON h.ID2 = d.ID2 WHERE d.ID1 = ?1 AND "
                         "d.Year1 = ?2 ORDER BY d.Day1",
                         -1, &statement, nullptr) == SQLITE_OK,
      database);
  sqlite3_bind_int(statement, 1, kEuro);
  sqlite3_bind_int(statement, 2, kYear);
  std::size_t cells = 0;
  std::size_t sum = 0;
  while (sqlite3_step(statement) == SQLITE_ROW) {
    for (int column = 0; column < sqlite3_column_count(statement); ++column, ++cells) {
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
  return cells;
}

void MeasureGetMain(const Benchmark& benchmark, const std::string& path) {
  ferrowind::bench::AddWeekendRules();
  ferrowind::bench::CreateCalendarWithWeekends(kEuro, kYear);
  CompareReading(
      benchmark, "50 calls of CldGetMain, peer: raw sqlite3 calls", 1.6, 50, [&] { return CallPeer(path); },
      31);
}

}  // namespace

int main(int argc, char** argv) {
  return ferrowind::bench::RunBenchmark(argc, argv, [](const Benchmark& benchmark) {
    const TemporaryFolder folder;
    ferrowind::sqlite::CreateDatabase(folder.File());
    ferrowind::platform::EngineRegistry engines;
    engines.Register(ferrowind::sqlite::Engine::kScheme, std::make_shared<ferrowind::sqlite::Engine>());
    ferrowind::host::RunWithDatabase(engines,
                                     std::string(ferrowind::sqlite::Engine::kScheme) + ":" + folder.File(),
                                     [&] { MeasureGetMain(benchmark, folder.File()); });
  });
}
