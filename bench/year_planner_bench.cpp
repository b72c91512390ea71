// The year planner, from the call that opens it to the painted window, against a calendar control of Qt for
// each month, with the same days in the text formats that such a control has for them.

#include <QApplication>
#include <QCalendarWidget>
#include <QGridLayout>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTextCharFormat>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "ferrowind/adapters/qt/year/year_pane.h"
#include "ferrowind/adapters/qt/year/year_widget.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/views/planning/planning_windows.h"

#include "bench/measurement.h"
#include "bench/window_stage.h"

namespace {

using ferrowind::bench::Benchmark;
using ferrowind::bench::LetWindowsRest;
using ferrowind::bench::PaintWatch;
using ferrowind::bench::Watch;
using ferrowind::bench::WindowStage;

constexpr int kYear = 2028;
const std::vector<std::int32_t> kCurrencies = {840, 36, 124, 156, 392, 578, 752, 756, 826, 978};
constexpr std::size_t kCalendarRuns = 9;

/// Weekends, ten holidays spread over the year, and two exceptions, in a calendar of each currency.
std::string Fill() {
  std::string sql =
      "INSERT INTO CldHoliday (ID2, Name1, TID1, WD) VALUES (2, 'Weekend', 2, 1);"
      "INSERT INTO CldHoliday (ID2, Name1, TID1, D1, MY, MD) VALUES (3, 'Holiday', 4, '2028-01-03', 1, 3);";
  for (const std::int32_t currency : kCurrencies) {
    const std::string id = std::to_string(currency);
    sql += "INSERT INTO CldCalendar (ID1, Year1) VALUES (" + id +
           ", 2028);"
           "WITH RECURSIVE N (n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM N WHERE n < 366), "
           "Day (n, D) AS (SELECT n, date('2028-01-01', (n - 1) || ' days') FROM N) "
           "INSERT INTO CldDay (ID1, Year1, Day1, ODate, TID1, ID2) SELECT " +
           id +
           ", 2028, n, D, "
           "CASE WHEN n % 36 = 3 THEN 4 WHEN n IN (8, 15) THEN 1 WHEN strftime('%w', D) IN ('0', '6') THEN 2 "
           "ELSE 1 END, "
           "CASE WHEN n % 36 = 3 THEN 3 WHEN n IN (8, 15) THEN 1 WHEN strftime('%w', D) IN ('0', '6') THEN 2 "
           "END "
           "FROM Day;";
  }
  return sql;
}

/// A calendar control for each month of each currency, side by side in one window.
class MonthControls {
 public:
  /// Reads the days of the database that Qt has open as "peer", and shows the window.
  explicit MonthControls(const std::vector<std::int32_t>& currencies) {
    auto* layout = new QGridLayout(&window_);
    int row = 0;
    for (const std::int32_t currency : currencies) {
      const QMap<QDate, QTextCharFormat> formats = FormatsOf(currency);
      for (int month = 1; month <= 12; ++month) {
        auto* calendar = new QCalendarWidget;
        calendar->setNavigationBarVisible(false);
        calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
        calendar->setCurrentPage(kYear, month);
        for (auto day = formats.begin(); day != formats.end(); ++day) {
          if (day.key().month() == month) calendar->setDateTextFormat(day.key(), day.value());
        }
        const bool is_only_one = currencies.size() == 1;
        layout->addWidget(calendar, is_only_one ? (month - 1) / 4 : row,
                          is_only_one ? (month - 1) % 4 : month - 1);
        calendars_.push_back(calendar);
      }
      ++row;
    }
    window_.show();
    for (const QCalendarWidget* calendar : calendars_) {
      auto* view = calendar->findChild<QAbstractItemView*>();
      watches_.push_back(std::make_unique<PaintWatch>(*view->viewport()));
    }
  }
  void WaitUntilPainted() const {
    for (const auto& watch : watches_) watch->WaitUntilPainted();
  }

 private:
  static QMap<QDate, QTextCharFormat> FormatsOf(std::int32_t currency) {
    QTextCharFormat weekend;
    weekend.setBackground(Qt::lightGray);
    QTextCharFormat holiday;
    holiday.setBackground(Qt::red);
    QTextCharFormat exception;
    exception.setBackground(Qt::green);
    QSqlQuery days(QSqlDatabase::database(QStringLiteral("peer")));
    const QString query = QStringLiteral(
        "SELECT d.ODate, d.TID1, h.Name1 FROM CldDay d JOIN CldHoliday h USING (ID2) WHERE ID1 = %1 AND "
        "Year1 = %2");
    if (!days.exec(query.arg(currency).arg(kYear)))
      throw std::runtime_error(days.lastError().text().toStdString());
    QMap<QDate, QTextCharFormat> formats;
    while (days.next()) {
      const int type = days.value(1).toInt();
      QTextCharFormat format = type == 2 ? weekend : type == 1 ? exception : holiday;
      format.setToolTip(days.value(2).toString());
      formats.insert(QDate::fromString(days.value(0).toString(), Qt::ISODate), format);
    }
    return formats;
  }

  QWidget window_;
  std::vector<QCalendarWidget*> calendars_;
  std::vector<std::unique_ptr<PaintWatch>> watches_;
};

void Measure(const Benchmark& benchmark, const std::string& name, double limit,
             const std::vector<std::int32_t>& currencies, const QSize& size) {
  WindowStage stage(Fill());
  stage.OpenCalendars("USD");
  const ferrowind::almanac::DateTables tables;
  ferrowind::PlanningWindows windows(stage.Platform(), tables);
  const auto open = [&](const QSize& resized) {
    const Watch watch;
    ferrowind::RunHandler(stage.Platform(), [&] { windows.OpenYearPlanner(currencies, kYear); });
    QWidget& window = ferrowind::bench::WindowNamed("fmYearPlanner");
    auto& pane = window.findChild<ferrowind::qt::YearWidget*>()->Pane();
    const PaintWatch painted(*pane.viewport());
    painted.WaitUntilPainted();
    const double time = watch.Milliseconds();
    const auto expected = static_cast<int>(currencies.size() == 1 ? 1 : currencies.size() + 1);
    if (pane.Days().CalendarCount() != expected)
      throw std::logic_error("the year planner shows something else");
    if (resized.isValid()) window.resize(resized);
    window.close();
    LetWindowsRest();
    return time;
  };
  // The window comes back at the size at which all months are on show.
  open(size);
  {
    auto database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("peer"));
    database.setDatabaseName(QString::fromStdString(stage.DatabasePath()));
    if (!database.open()) throw std::runtime_error(database.lastError().text().toStdString());
  }
  const auto peer = [&] {
    double time = 0;
    {
      const Watch watch;
      const MonthControls controls(currencies);
      controls.WaitUntilPainted();
      time = watch.Milliseconds();
    }
    LetWindowsRest();
    return time;
  };
  benchmark.CompareTimes(
      name, limit, [&] { return open({}); }, peer, kCalendarRuns);
  QSqlDatabase::database(QStringLiteral("peer")).close();
  QSqlDatabase::removeDatabase(QStringLiteral("peer"));
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  return ferrowind::bench::RunBenchmark(argc, argv, [](const Benchmark& benchmark) {
    Measure(benchmark, "year planner of one calendar until painted", 1.0, {840}, {1000, 680});
    Measure(benchmark, "year planner of ten currencies until painted", 0.3, kCurrencies, {1850, 1000});
  });
}
