// What the protections against hostile files and servers cost a call: the component as it is against the same
// with database adapters that have none, each in a program of its own. On a server they are the limits of
// what is waited for and of what an answer may hold; what looks at values reads them, too.

#include <csignal>
#include <memory>
#include <string>

#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/platform/database/engine_registry.h"

#include "bench/calendar_calls.h"
#include "bench/measurement.h"
#include "bench/own_server.h"
#include "bench/temporary_folder.h"
#include "bench/timed_program.h"
#include "host/session/procedure_session.h"

namespace {

using ferrowind::bench::Benchmark;
using ferrowind::bench::TemporaryFolder;
using ferrowind::bench::TimedProgram;
using ferrowind::platform::EngineRegistry;

void MeasureProtections(const Benchmark& benchmark, const EngineRegistry& engines, const std::string& name,
                        const std::string& url) {
  constexpr double kLimit = 1.05;
  constexpr int kCalls = 20;
  constexpr int kRuns = 101;
  ferrowind::host::RunWithDatabase(engines, url, [] {
    ferrowind::bench::AddWeekendRules();
    ferrowind::bench::CreateCalendarWithWeekends(ferrowind::bench::kEuro, ferrowind::bench::kYear);
  });
  TimedProgram with(FERROWIND_PROTECTED_CALLS, "read", url);
  TimedProgram without(FERROWIND_UNPROTECTED_CALLS, "read", url);
  benchmark.CompareTimes(
      name, kLimit, [&] { return with.TimeOf(kCalls); }, [&] { return without.TimeOf(kCalls); }, kRuns);
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
    const TemporaryFolder folder;
    ferrowind::sqlite::CreateDatabase(folder.File());
    MeasureProtections(benchmark, engines, "20 calls of CldGetMain on a file, peer: no protections",
                       "sqlite:" + folder.File());
    ferrowind::postgres::CreateDatabaseObjects(server_uri);
    MeasureProtections(benchmark, engines, "20 calls of CldGetMain on a server, peer: no protections",
                       server_uri);
  });
}
