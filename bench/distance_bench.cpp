// Windows on a server that is far away: selecting a calendar until its days are painted, with sessions that
// are kept between calls, against the same windows without.

#include <QApplication>
#include <QTreeView>
#include <chrono>
#include <memory>
#include <string>
#include <thread>

#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/platform/database/engine_registry.h"

#include "bench/calendar_calls.h"
#include "bench/delaying_proxy.h"
#include "bench/measurement.h"
#include "bench/own_server.h"
#include "bench/window_stage.h"
#include "host/session/procedure_session.h"

namespace {

using ferrowind::bench::Benchmark;
using ferrowind::bench::WindowStage;

void CreateCalendars(const std::string& uri) {
  ferrowind::postgres::CreateDatabaseObjects(uri);
  ferrowind::platform::EngineRegistry engines;
  engines.Register(ferrowind::postgres::Engine::kScheme, std::make_shared<ferrowind::postgres::Engine>());
  ferrowind::host::RunWithDatabase(engines, uri, [] {
    ferrowind::bench::AddWeekendRules();
    for (const int year : {0, 1}) {
      ferrowind::bench::CreateCalendarWithWeekends(ferrowind::bench::kEuro, ferrowind::bench::kYear + year);
    }
  });
}

/// The time of one selection in windows of their own, `pause` after the one before it.
double TimeOfSelecting(const std::string& uri, std::chrono::milliseconds pause) {
  WindowStage stage(WindowStage::Elsewhere{uri});
  stage.OpenCalendars("EUR");
  ferrowind::bench::LetWindowsRest();
  std::this_thread::sleep_for(pause);
  const ferrowind::bench::Watch watch;
  const ferrowind::bench::PaintWatch painted(*ferrowind::bench::GridIn(stage.Calendars()).viewport());
  ferrowind::bench::PressKey(stage.Tree(), Qt::Key_Down);
  painted.WaitUntilPainted();
  const double time = watch.Milliseconds();
  ferrowind::bench::LetWindowsRest();
  return time;
}

void MeasureSelecting(const Benchmark& benchmark, const std::string& uri) {
  const ferrowind::bench::DelayingProxy proxy(ferrowind::bench::PortIn(uri), std::chrono::milliseconds(10));
  const std::string keeping = uri + "?port=" + proxy.Port();
  const std::string closing = keeping + "&keep_sessions=no";
  const auto compare = [&](const std::string& name, std::chrono::milliseconds pause) {
    benchmark.CompareTimes(
        name, 0.35, [&] { return TimeOfSelecting(keeping, pause); },
        [&] { return TimeOfSelecting(closing, pause); }, 9);
  };
  // Of who goes through calendars, and of who reads them: the first is quicker than descriptions of
  // procedures are forgotten.
  compare("selecting over 10 ms each way, peer: no session kept", std::chrono::milliseconds(300));
  compare("the same after a longer look", std::chrono::milliseconds(1500));
}

}  // namespace

int main(int argc, char** argv) {
  const std::string uri = ferrowind::bench::OwnServer(argv);
  const QApplication application(argc, argv);
  return ferrowind::bench::RunBenchmark(argc, argv, [&](const Benchmark& benchmark) {
    CreateCalendars(uri);
    MeasureSelecting(benchmark, uri);
  });
}
