// The readiness board, from the call to the painted window, against one calendar in the day grid: what an
// operator waits for at the start page, and what they are used to wait for.

#include <QAbstractItemView>
#include <QApplication>
#include <memory>
#include <stdexcept>
#include <string>

#include "ferrowind/adapters/qt/table/table_view.h"
#include "ferrowind/views/planning/fm_readiness.h"

#include "bench/measurement.h"
#include "bench/planned_calendars.h"
#include "bench/window_stage.h"
#include "host/delivery/delivered_tables.h"

namespace {

using ferrowind::fmReadiness;
using ferrowind::bench::Benchmark;
using ferrowind::bench::GridIn;
using ferrowind::bench::LetWindowsRest;
using ferrowind::bench::PaintWatch;
using ferrowind::bench::PressKey;
using ferrowind::bench::Watch;
using ferrowind::bench::WindowStage;

QAbstractItemView& TableIn(const char* name) {
  return *ferrowind::bench::WindowNamed("fmReadiness").findChild<ferrowind::qt::TableView*>(name);
}

void RequirePrepared(int currencies) {
  const QAbstractItemModel& cells = *TableIn("tblBoard").model();
  if (cells.rowCount() != currencies) throw std::logic_error("the board has not all currencies");
  for (int row = 0; row < cells.rowCount(); ++row) {
    for (int column = 2; column < cells.columnCount(); ++column) {
      if (!cells.index(row, column).data().toString().startsWith(QLatin1String("Prepared")))
        throw std::logic_error("a calendar is not as planned");
    }
  }
}

void MeasureBoard(const Benchmark& benchmark) {
  constexpr int kCurrencies = 26;
  WindowStage stage("");
  const int year = stage.Platform().clock.Today().Year();
  ferrowind::bench::RunWithFile(stage.DatabasePath(),
                                [year] { ferrowind::bench::MakePlannedCalendars(year - 1, year + 2); });
  stage.OpenCalendars("EUR");
  auto& days = GridIn(stage.Calendars());
  bool is_down = false;
  const auto peer = [&] {
    const Watch watch;
    const PaintWatch painted(*days.viewport());
    PressKey(stage.Tree(), is_down ? Qt::Key_Up : Qt::Key_Down);
    painted.WaitUntilPainted();
    const double time = watch.Milliseconds();
    is_down = !is_down;
    LetWindowsRest();
    return time;
  };

  ferrowind::PlanningWindows windows(stage.Platform(), ferrowind::host::DeliveredDateTables());
  const ferrowind::PlanningContext context{stage.Platform(), ferrowind::host::DeliveredDateTables(), windows};
  const auto opened = [&] {
    const Watch watch;
    const auto board = fmReadiness::Create(context, {});
    board->Show();
    const PaintWatch painted(*TableIn("tblFindings").viewport());
    painted.WaitUntilPainted();
    const double time = watch.Milliseconds();
    RequirePrepared(kCurrencies);
    board->Close();
    LetWindowsRest();
    return time;
  };
  benchmark.CompareTimes("opening the board, 26 x 4 years, peer: one calendar", 2.5, opened, peer, 31);
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  return ferrowind::bench::RunBenchmark(argc, argv, MeasureBoard);
}
