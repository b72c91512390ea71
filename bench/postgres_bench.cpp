// A procedure call on a server with everything that belongs to it, from connecting to the detached record
// set, against the calls of the server's own client library that connect, run the same statement and read all
// cells. Without a server to measure on, the program starts one of its own for itself.

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <libpq-fe.h>
#include <unistd.h>

#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/data/exec_proc.h"
#include "ferrowind/data/source_values.h"
#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/values/record_set.h"

#include "bench/measurement.h"
#include "host/session/procedure_session.h"

namespace {

using ferrowind::ExecProc;
using ferrowind::SourceValues;
using ferrowind::bench::Benchmark;
using ferrowind::bench::KeepResult;

constexpr int kEuro = 978;
constexpr int kYear = 2026;
constexpr int kCallsPerRun = 20;
constexpr const char* kServerVariable = "FERROWIND_POSTGRES";

SourceValues CalendarParameters() {
  SourceValues parameters;
  parameters.Add("ID1", kEuro);
  parameters.Add("Year1", kYear);
  return parameters;
}

void CreateCalendarWithWeekends() {
  const auto store = [](const SourceValues& parameters) {
    std::shared_ptr<SourceValues> results;
    if (ExecProc("CldIUMain", &parameters, results) != 0) throw std::runtime_error("CldIUMain failed");
  };
  store(CalendarParameters());
  // The delivered rules 2 and 3 are Saturday and Sunday.
  for (const int rule : {2, 3}) {
    SourceValues parameters = CalendarParameters();
    parameters.Add("TID1", 2);
    parameters.Add("ID2", rule);
    store(parameters);
  }
}

/// The number of cells.
std::size_t CallOurs() {
  const SourceValues parameters = CalendarParameters();
  std::shared_ptr<SourceValues> results;
  if (ExecProc("CldGetMain", &parameters, results) != 0) throw std::runtime_error("CldGetMain failed");
  const auto days = results->Values("1");
  const auto* const record_set = days ? days->Value.If<ferrowind::platform::Value::Object>() : nullptr;
  if (record_set == nullptr || !*record_set) throw std::runtime_error("CldGetMain gave no record set");
  return (*record_set)->RowCount() * (*record_set)->FieldCount();
}

/// The number of cells.
std::size_t CallPeer(const std::string& uri) {
  PGconn* const connection = PQconnectdb(uri.c_str());
  const std::string id = std::to_string(kEuro);
  const std::string year = std::to_string(kYear);
  const char* const values[] = {id.c_str(), year.c_str()};
  PGresult* const result =
      PQexecParams(connection,
                   "SELECT d.ODate, d.TID1, h.Name1, h.Comment AS Comment2, d.Comment, d.ID2, d.Day1"
                   " FROM ferrowind.CldDay d LEFT JOIN ferrowind.CldHoliday h ON h.ID2 = d.ID2"
                   " WHERE d.ID1 = $1 AND d.Year1 = $2 ORDER BY d.Day1",
                   2, nullptr, values, nullptr, nullptr, 0);
  if (PQresultStatus(result) != PGRES_TUPLES_OK) throw std::runtime_error(PQerrorMessage(connection));
  std::size_t cells = 0;
  std::size_t sum = 0;
  for (int row = 0; row < PQntuples(result); ++row) {
    for (int column = 0; column < PQnfields(result); ++column, ++cells) {
      if (PQgetisnull(result, row, column) != 0) continue;
      sum += static_cast<std::size_t>(PQgetvalue(result, row, column)[0] + PQgetlength(result, row, column));
    }
  }
  KeepResult(sum);
  PQclear(result);
  PQfinish(connection);
  return cells;
}

void MeasureGetMain(const Benchmark& benchmark, const std::string& uri) {
  CreateCalendarWithWeekends();
  if (CallOurs() != CallPeer(uri)) throw std::logic_error("the two do not read the same cells");
  const auto repeated = [](const auto& call) {
    return [call] {
      for (int i = 0; i < kCallsPerRun; ++i) KeepResult(call());
    };
  };
  benchmark.Compare("20 calls of CldGetMain on a server, peer: raw libpq", 1.35,
                    {repeated([] { return CallOurs(); })}, {repeated([&] { return CallPeer(uri); })}, 31);
}

/// Runs this program again beside a server of its own; returns only when that cannot be done.
void StartAgainWithServer(char** argv) {
  std::vector<char*> command;
  std::string script = FERROWIND_WITH_POSTGRES;
  command.push_back(script.data());
  std::string program = "/proc/self/exe";
  std::vector<char> path(4096);
  const ssize_t size = readlink(program.c_str(), path.data(), path.size() - 1);
  if (size <= 0) return;
  path[static_cast<std::size_t>(size)] = '\0';
  command.push_back(path.data());
  for (char** argument = argv + 1; *argument != nullptr; ++argument) command.push_back(*argument);
  command.push_back(nullptr);
  execv(script.c_str(), command.data());
}

}  // namespace

int main(int argc, char** argv) {
  if (std::getenv(kServerVariable) == nullptr) StartAgainWithServer(argv);
  return ferrowind::bench::RunBenchmark(argc, argv, [](const Benchmark& benchmark) {
    const char* const uri = std::getenv(kServerVariable);
    if (uri == nullptr) throw std::runtime_error("no server of its own could be started");
    ferrowind::postgres::CreateDatabaseObjects(uri, true);
    ferrowind::platform::EngineRegistry engines;
    engines.Register(ferrowind::postgres::Engine::kScheme, std::make_shared<ferrowind::postgres::Engine>());
    ferrowind::host::RunWithDatabase(engines, uri, [&] { MeasureGetMain(benchmark, uri); });
  });
}
