// The readiness board, from the call to the painted window, against one calendar in the day grid: what an
// operator waits for at the start page, and what they are used to wait for.

#include <QAbstractItemView>
#include <QApplication>
#include <memory>
#include <stdexcept>
#include <string>

#include "ferrowind/adapters/qt/table/table_view.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
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
using ferrowind::qt::TableView;

constexpr int kCurrencies = 26;

/// A stage with planned calendars of all delivered currencies, for the years of the board.
class PlannedStage {
 public:
  PlannedStage() {
    const int year = stage_.Platform().clock.Today().Year();
    ferrowind::bench::RunWithFile(stage_.DatabasePath(),
                                  [year] { ferrowind::bench::MakePlannedCalendars(year - 1, year + 2); });
    AddUnusedRule();
  }

  [[nodiscard]] WindowStage& Windows() { return stage_; }
  [[nodiscard]] ferrowind::PlanningContext ContextOf(ferrowind::PlanningWindows& windows) const {
    return {stage_.Platform(), ferrowind::host::DeliveredDateTables(), windows};
  }
  /// Changes the rules and every book: all that was read and judged before is worth nothing.
  void ChangeAll() {
    const std::string number = std::to_string(++changes_);
    Execute("UPDATE CldBook SET Document = 'Document " + number + "';" +
            "UPDATE CldHoliday SET Name1 = 'Unused " + number + "' WHERE Name1 LIKE 'Unused%'");
  }

 private:
  void AddUnusedRule() {
    Execute("INSERT INTO CldHoliday (Name1, TID1, D1, MY, MD) VALUES ('Unused', 3, '2026-12-25', 12, 25)");
  }
  void Execute(const std::string& statement) const {
    ferrowind::sqlite::DatabaseHandle(stage_.DatabasePath()).Execute(statement.c_str());
  }

  WindowStage stage_{""};
  int changes_ = 0;
};

TableView& TableIn(const char* name) {
  return *ferrowind::bench::WindowNamed("fmReadiness").findChild<TableView*>(name);
}

void RequirePrepared() {
  const QAbstractItemModel& cells = *TableIn("tblBoard").model();
  if (cells.rowCount() != kCurrencies) throw std::logic_error("the board has not all currencies");
  for (int row = 0; row < cells.rowCount(); ++row) {
    for (int column = 2; column < cells.columnCount(); ++column) {
      if (!cells.index(row, column).data().toString().startsWith(QLatin1String("Prepared")))
        throw std::logic_error("a calendar is not as planned");
    }
  }
}

/// The board is painted above its findings, in the same pass.
std::unique_ptr<PaintWatch> WatchBoard() {
  return std::make_unique<PaintWatch>(*TableIn("tblFindings").viewport());
}

/// Both sides in windows that stand already: the board's Refresh, and a step to a calendar.
void MeasureReading(const Benchmark& benchmark) {
  PlannedStage stage;
  stage.Windows().OpenCalendars("EUR");
  auto& days = GridIn(stage.Windows().Calendars());
  bool is_down = false;
  const auto peer = [&] {
    const Watch watch;
    const PaintWatch painted(*days.viewport());
    PressKey(stage.Windows().Tree(), is_down ? Qt::Key_Up : Qt::Key_Down);
    painted.WaitUntilPainted();
    const double time = watch.Milliseconds();
    is_down = !is_down;
    LetWindowsRest();
    return time;
  };

  ferrowind::PlanningWindows windows(stage.Windows().Platform(), ferrowind::host::DeliveredDateTables());
  const auto board = fmReadiness::Create(stage.ContextOf(windows), {});
  board->Show();
  LetWindowsRest();
  const auto again = [&] {
    const Watch watch;
    const auto painted = WatchBoard();
    board->Refresh();
    painted->WaitUntilPainted();
    const double time = watch.Milliseconds();
    LetWindowsRest();
    RequirePrepared();
    return time;
  };
  const auto anew = [&] {
    stage.ChangeAll();
    return again();
  };
  benchmark.CompareTimes("board of 26 x 4 judged anew, peer: one calendar", 2.5, anew, peer, 31);
  benchmark.CompareTimes("the same read again, peer: one calendar", 2.5, again, peer, 31);
  board->Close();
}

/// Both sides make their window, and have judged and read nothing before.
void MeasureOpening(const Benchmark& benchmark) {
  PlannedStage stage;
  stage.Windows().PlaceControl();
  const auto peer = [&] {
    const Watch watch;
    stage.Windows().ShowCalendar("EUR");
    const PaintWatch painted(*GridIn(stage.Windows().Calendars()).viewport());
    painted.WaitUntilPainted();
    const double time = watch.Milliseconds();
    if (GridIn(stage.Windows().Calendars()).Model()->rowCount() < 365)
      throw std::logic_error("no days are shown");
    stage.Windows().CloseCalendars();
    LetWindowsRest();
    return time;
  };
  const auto ours = [&] {
    ferrowind::PlanningWindows windows(stage.Windows().Platform(), ferrowind::host::DeliveredDateTables());
    const Watch watch;
    const auto board = fmReadiness::Create(stage.ContextOf(windows), {});
    board->Show();
    const auto painted = WatchBoard();
    painted->WaitUntilPainted();
    const double time = watch.Milliseconds();
    RequirePrepared();
    board->Close();
    LetWindowsRest();
    return time;
  };
  benchmark.CompareTimes("window and board of 26 x 4, peer: window, one calendar", 2.5, ours, peer, 31);
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  return ferrowind::bench::RunBenchmark(argc, argv, [](const Benchmark& benchmark) {
    MeasureReading(benchmark);
    MeasureOpening(benchmark);
  });
}
