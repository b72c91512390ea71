// What the chain of the history costs a call that changes something: the component as it is against the same
// without a chain. On a file that is another database adapter, each in a program of its own; on a server,
// where procedures keep the chain, it is another database with other functions.

#include <chrono>
#include <csignal>
#include <memory>
#include <string>
#include <string_view>

#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/platform/database/engine_registry.h"

#include "bench/calendar_calls.h"
#include "bench/measurement.h"
#include "bench/own_server.h"
#include "bench/temporary_folder.h"
#include "bench/timed_program.h"
#include "host/session/procedure_session.h"

namespace ferrowind::embedded {
extern const std::string_view kHistoryWithoutChain;
}

namespace {

using ferrowind::bench::Benchmark;
using ferrowind::bench::kEuro;
using ferrowind::bench::kYear;
using ferrowind::bench::TimedProgram;
using ferrowind::host::RunWithDatabase;
using ferrowind::platform::EngineRegistry;

constexpr double kLimit = 1.1;
constexpr int kCalls = 20;
constexpr int kRuns = 51;

void PrepareCalendar() {
  ferrowind::bench::AddWeekendRules();
  ferrowind::bench::CreateCalendarWithWeekends(kEuro, kYear);
}

void MeasureFiles(const Benchmark& benchmark, const EngineRegistry& engines) {
  const ferrowind::bench::TemporaryFolder chained;
  const ferrowind::bench::TemporaryFolder unchained;
  for (const auto* const folder : {&chained, &unchained}) {
    ferrowind::sqlite::CreateDatabase(folder->File());
    RunWithDatabase(engines, "sqlite:" + folder->File(), PrepareCalendar);
  }
  TimedProgram with(FERROWIND_CHAINED_CALLS, "change", "sqlite:" + chained.File());
  TimedProgram without(FERROWIND_UNCHAINED_CALLS, "change", "sqlite:" + unchained.File());
  benchmark.CompareTimes(
      "20 calls of CldIUMain on a file, peer: no chain", kLimit, [&] { return with.TimeOf(kCalls); },
      [&] { return without.TimeOf(kCalls); }, kRuns);
}

/// Calls of CldIUMain in one database of the server.
class ServerCalls {
 public:
  ServerCalls(const EngineRegistry& engines, const std::string& server_uri, const std::string& database)
      : engines_(engines), uri_(server_uri.substr(0, server_uri.rfind('/') + 1) + database) {
    ferrowind::postgres::ServerConnection(server_uri).RunScript("CREATE DATABASE " + database);
    ferrowind::postgres::CreateDatabaseObjects(uri_);
  }

  void Execute(std::string_view sql) {
    ferrowind::postgres::ServerConnection(uri_).RunScript(std::string(sql));
  }
  void Prepare() { RunWithDatabase(engines_, uri_, PrepareCalendar); }

  [[nodiscard]] double TimeOf(int calls) {
    std::chrono::duration<double, std::milli> time{};
    RunWithDatabase(engines_, uri_, [&] {
      const auto start = std::chrono::steady_clock::now();
      for (int i = 0; i < calls; ++i) ferrowind::bench::MarkAnotherDay(number_++);
      time = std::chrono::steady_clock::now() - start;
    });
    return time.count();
  }

 private:
  const EngineRegistry& engines_;
  std::string uri_;
  int number_ = 0;
};

void MeasureServer(const Benchmark& benchmark, const EngineRegistry& engines, const std::string& server_uri) {
  ServerCalls with(engines, server_uri, "chained");
  ServerCalls without(engines, server_uri, "unchained");
  without.Execute(ferrowind::embedded::kHistoryWithoutChain);
  with.Prepare();
  without.Prepare();
  benchmark.CompareTimes(
      "20 calls of CldIUMain on a server, peer: no chain", kLimit, [&] { return with.TimeOf(kCalls); },
      [&] { return without.TimeOf(kCalls); }, kRuns);
}

}  // namespace

int main(int argc, char** argv) {
  // A program that has ended is told by the answer that is missing.
  std::signal(SIGPIPE, SIG_IGN);
  return ferrowind::bench::RunBenchmark(argc, argv, [&](const Benchmark& benchmark) {
    const std::string server_uri = ferrowind::bench::OwnServer(argv);
    EngineRegistry engines;
    engines.Register(ferrowind::sqlite::Engine::kScheme, std::make_shared<ferrowind::sqlite::Engine>());
    engines.Register(ferrowind::postgres::Engine::kScheme, std::make_shared<ferrowind::postgres::Engine>());
    MeasureFiles(benchmark, engines);
    MeasureServer(benchmark, engines, server_uri);
  });
}
