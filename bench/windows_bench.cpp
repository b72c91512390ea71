// The windows as the operator feels them, from the key or click to the painted window, against the views and
// models of Qt over its own SQLite driver, and against bare SQLite calls.

#include <QAbstractButton>
#include <QApplication>
#include <QSortFilterProxyModel>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQueryModel>
#include <QSqlTableModel>
#include <QTableView>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include <sqlite3.h>

#include "ferrowind/adapters/sqlite/database_handle.h"

#include "bench/grid_peers.h"
#include "bench/measurement.h"
#include "bench/window_stage.h"

namespace {

using ferrowind::bench::Benchmark;
using ferrowind::bench::GridIn;
using ferrowind::bench::LetWindowsRest;
using ferrowind::bench::PaintWatch;
using ferrowind::bench::PressKey;
using ferrowind::bench::Watch;
using ferrowind::bench::WindowStage;

constexpr const char* kDollarCalendars = R"(
INSERT INTO CldCalendar (ID1, Year1) VALUES (840, 2028), (840, 2029);
WITH RECURSIVE Day (D) AS (
  SELECT '2028-01-01' UNION ALL SELECT date(D, '1 day') FROM Day WHERE D < '2029-12-31')
INSERT INTO CldDay (ID1, Year1, Day1, ODate, TID1)
SELECT 840, CAST(strftime('%Y', D) AS INTEGER), CAST(strftime('%j', D) AS INTEGER), D, 1 FROM Day;
)";

/// SQL for that many rules of weekdays, and of dates spread over the year; every tenth of the latter removed
/// when wanted.
std::string Rules(int weekday_rules, int dated_rules, bool with_removed) {
  const std::string removed = with_removed ? "CASE n % 10 WHEN 0 THEN 2 END" : "NULL";
  return "WITH RECURSIVE N (n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM N WHERE n < " +
         std::to_string(weekday_rules) +
         ") INSERT INTO CldHoliday (Name1, Comment, TID1, WD) "
         "SELECT 'Weekday ' || n, 'Every week', 2, n FROM N;"
         "WITH RECURSIVE N (n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM N WHERE n < " +
         std::to_string(dated_rules) +
         "), Day (n, D) AS (SELECT n, date('2028-01-01', (n * 19 % 366) || ' days') FROM N) "
         "INSERT INTO CldHoliday (Name1, Comment, TID1, D1, MY, MD, Del) "
         "SELECT 'Holiday ' || n, 'Comment ' || n, 3 + n % 2, D, CAST(strftime('%m', D) AS INTEGER), "
         "CAST(strftime('%d', D) AS INTEGER), " +
         removed + " FROM Day;";
}

/// The day grid's rows without what the window computes. Qt's table model finds no temporary view, and
/// refuses columns of a collation that it does not know.
constexpr const char* kDayView =
    "CREATE VIEW Day AS SELECT d.ODate, t.Description1, h.Name1 || '' AS Name1, h.Comment AS Comment2, "
    "d.Comment,"
    " d.Day1, d.ID1, d.Year1 FROM CldDay d JOIN CldHolidayType t USING (TID1) LEFT JOIN CldHoliday h USING "
    "(ID2);";

/// The columns that the Holidays window shows, and those it filters by.
constexpr const char* kRuleQuery =
    "SELECT h.Name1, h.D1, t.Description1, h.Comment, h.MD, h.MY, h.ID2, h.WD, h.Del, h.TID1"
    " FROM CldHoliday h JOIN CldHolidayType t USING (TID1)";
constexpr int kDelColumn = 8;
constexpr int kTypeColumn = 9;

/// A copy of the stage's database with the view, which ours would refuse as foreign. Qt has it open.
class QtDatabase {
 public:
  explicit QtDatabase(const WindowStage& stage) {
    const std::string path = stage.DatabasePath() + ".peer";
    std::filesystem::copy_file(stage.DatabasePath(), path);
    ferrowind::sqlite::DatabaseHandle(path).Execute(kDayView);
    auto database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), kName);
    database.setDatabaseName(QString::fromStdString(path));
    if (!database.open()) throw std::runtime_error(database.lastError().text().toStdString());
  }
  QtDatabase(const QtDatabase&) = delete;
  QtDatabase& operator=(const QtDatabase&) = delete;
  ~QtDatabase() {
    QSqlDatabase::database(kName).close();
    QSqlDatabase::removeDatabase(kName);
  }
  [[nodiscard]] static QSqlDatabase Get() { return QSqlDatabase::database(kName); }

 private:
  static inline const QString kName = QStringLiteral("peer");
};

void RequireRows(int rows, int wanted) {
  if (rows != wanted) {
    throw std::logic_error(std::to_string(rows) + " rows are shown instead of " + std::to_string(wanted));
  }
}

// A calendar
// ------------------------------------------------------------------------------------------------------------

void MeasureSelection(const Benchmark& benchmark, const std::string& name, double limit,
                      WindowStage::Additions additions) {
  WindowStage stage(std::string(kDollarCalendars) + Rules(2, 18, false) +
                        "UPDATE CldDay SET TID1 = 2, ID2 = 2 WHERE strftime('%w', ODate) IN ('0', '6')",
                    additions);
  stage.OpenCalendars("USD");
  auto& days = GridIn(stage.Calendars());
  int year = 2028;
  const auto ours = [&] {
    const Watch watch;
    const PaintWatch painted(*days.viewport());
    PressKey(stage.Tree(), year == 2028 ? Qt::Key_Down : Qt::Key_Up);
    painted.WaitUntilPainted();
    const double time = watch.Milliseconds();
    LetWindowsRest();
    year = year == 2028 ? 2029 : 2028;
    RequireRows(days.Model()->rowCount(), year == 2028 ? 366 : 365);
    return time;
  };

  const QtDatabase database(stage);
  QSqlTableModel model(nullptr, QtDatabase::Get());
  model.setTable(QStringLiteral("Day"));
  QSortFilterProxyModel proxy;
  proxy.setSourceModel(&model);
  QTableView view;
  view.setModel(&proxy);
  view.resize(days.size());
  view.show();
  int peer_year = 2029;
  const auto peer = [&] {
    peer_year = peer_year == 2028 ? 2029 : 2028;
    const Watch watch;
    const PaintWatch painted(*view.viewport());
    model.setFilter(QStringLiteral("ID1 = 840 AND Year1 = %1").arg(peer_year));
    if (!model.select()) throw std::runtime_error(model.lastError().text().toStdString());
    // The model reads no more than 256 rows by itself.
    while (model.canFetchMore()) model.fetchMore();
    painted.WaitUntilPainted();
    const double time = watch.Milliseconds();
    LetWindowsRest();
    RequireRows(proxy.rowCount(), peer_year == 2028 ? 366 : 365);
    return time;
  };
  benchmark.CompareTimes(name, limit, ours, peer, 31);
}

// Assigning
// ------------------------------------------------------------------------------------------------------------

void Run(sqlite3* database, const char* sql) {
  char* message = nullptr;
  if (sqlite3_exec(database, sql, nullptr, nullptr, &message) == SQLITE_OK) return;
  const std::string text = message;
  sqlite3_free(message);
  throw std::runtime_error(text);
}

/// What a call adds to the history.
constexpr const char* kHistoryEntry =
    "INSERT INTO CldHistory (Moment, UserName, ProcedureName, ID1, Year1, Parameters, ReturnValue, "
    "RowsChanged, ChainPosition, Previous, Hash)"
    " SELECT '2028-01-02T03:04:05.678Z', 'clerk', 'CldIUMain', 840, 2028,"
    " '{\"ID1\": 840, \"Year1\": 2028, \"TID1\": 3, \"ID2\": 5, \"Day1\": 20}', 0, 1,"
    " ifnull(max(ChainPosition), 0) + 1, '', '' FROM CldHistory"
    " WHERE ifnull(ID1, 0) = 840 AND ifnull(Year1, 0) = 2028";

/// What one call does: opens the file, assigns the rule and notes that in a transaction of its own, closes
/// the file.
void AssignBySqlite(const std::string& path, const std::string& statement) {
  sqlite3* database = nullptr;
  sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr);
  Run(database, "PRAGMA synchronous = FULL; PRAGMA foreign_keys = ON; BEGIN IMMEDIATE");
  Run(database, statement.c_str());
  Run(database, kHistoryEntry);
  Run(database, "COMMIT");
  sqlite3_close(database);
}

std::vector<std::string> AssigningStatements(const std::string& path) {
  sqlite3* database = nullptr;
  sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr);
  sqlite3_stmt* rules = nullptr;
  sqlite3_prepare_v2(
      database,
      "SELECT CASE TID1 WHEN 2 THEN 'UPDATE CldDay SET TID1 = 2, ID2 = ' || ID2 || "
      "', Comment = NULL WHERE ID1 = 840 AND Year1 = 2028 AND strftime(''%w'', ODate) = ''' || "
      "(WD - 1) || ''' AND (TID1 = 2 OR ID2 IS NULL)' "
      "ELSE 'UPDATE CldDay SET TID1 = ' || TID1 || ', ID2 = ' || ID2 || ', Comment = NULL "
      "WHERE ID1 = 840 AND Year1 = 2028 AND Day1 = ' || "
      "CAST(strftime('%j', '2028' || substr(D1, 5)) AS INTEGER) END "
      "FROM CldHoliday WHERE TID1 <> 1 ORDER BY TID1, ID2",
      -1, &rules, nullptr);
  std::vector<std::string> statements;
  while (sqlite3_step(rules) == SQLITE_ROW) {
    statements.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(rules, 0)));
  }
  sqlite3_finalize(rules);
  sqlite3_close(database);
  return statements;
}

/// Makes every day an ordinary working day again: days that do not change would cost no write.
void ForgetAssignments(const WindowStage& stage) {
  ferrowind::sqlite::DatabaseHandle(stage.DatabasePath())
      .Execute("UPDATE CldDay SET TID1 = 1, ID2 = NULL, Comment = NULL");
}

void MeasureAssignment(const Benchmark& benchmark) {
  constexpr int kRules = 20;
  const std::string fill = std::string(kDollarCalendars) + Rules(2, kRules - 2, false);
  WindowStage stage(fill);
  stage.OpenCalendars("USD");
  auto& days = GridIn(stage.Calendars());
  const auto ours = [&] {
    ForgetAssignments(stage);
    std::optional<Watch> watch;
    const PaintWatch painted(*days.viewport());
    stage.InHolidays([&](QWidget& holidays) {
      auto& rules = GridIn(holidays);
      RequireRows(rules.Model()->rowCount(), kRules);
      rules.setFocus();
      rules.selectAll();
      // What the opening left over is no part of the assignment.
      LetWindowsRest();
      watch.emplace();
      holidays.findChild<QAbstractButton*>(QStringLiteral("cmdAction5"))->click();
    });
    painted.WaitUntilPainted();
    const double time = watch->Milliseconds();
    LetWindowsRest();
    return time;
  };
  const WindowStage other(fill);
  const auto statements = AssigningStatements(other.DatabasePath());
  RequireRows(static_cast<int>(statements.size()), kRules);
  const auto peer = [&] {
    ForgetAssignments(other);
    const Watch watch;
    for (const auto& statement : statements) AssignBySqlite(other.DatabasePath(), statement);
    return watch.Milliseconds();
  };
  benchmark.CompareTimes("assigning 20 rules to a calendar, peer: bare sqlite3 calls", 1.5, ours, peer);
}

// The Holidays window
// ------------------------------------------------------------------------------------------------------------

void MeasureOpening(const Benchmark& benchmark) {
  constexpr int kRules = 1000;
  WindowStage stage(std::string(kDollarCalendars) + Rules(7, kRules - 7, false));
  stage.OpenCalendars("USD");
  QSize size;
  const auto ours = [&] {
    const Watch watch;
    double time = 0;
    stage.InHolidays([&](QWidget& holidays) {
      time = watch.Milliseconds();
      RequireRows(GridIn(holidays).Model()->rowCount(), kRules);
      size = holidays.size();
    });
    LetWindowsRest();
    return time;
  };
  const QtDatabase database(stage);
  const auto peer = [&] {
    const Watch watch;
    QSqlQueryModel model;
    model.setQuery(QString::fromLatin1(kRuleQuery) + QStringLiteral(" WHERE TID1 <> 1"), QtDatabase::Get());
    while (model.canFetchMore()) model.fetchMore();
    QTableView view;
    view.setModel(&model);
    view.resize(size);
    const PaintWatch painted(*view.viewport());
    view.show();
    painted.WaitUntilPainted();
    const double time = watch.Milliseconds();
    LetWindowsRest();
    RequireRows(model.rowCount(), kRules);
    return time;
  };
  benchmark.CompareTimes("opening Holidays, 1,000 rules, peer: QSqlQueryModel", 1.5, ours, peer, 31);
}

/// The window's filter and order, as one writes them on Qt's proxy first.
class RuleProxy : public ferrowind::bench::TwoColumnSort {
 public:
  RuleProxy() : TwoColumnSort(kDelColumn, kTypeColumn) {}
  void SetRemovedShown(bool are_shown) {
    are_removed_shown_ = are_shown;
    invalidateFilter();
  }

 protected:
  [[nodiscard]] bool filterAcceptsRow(int row, const QModelIndex& parent) const override {
    const QAbstractItemModel& rules = *sourceModel();
    if (rules.index(row, kTypeColumn, parent).data().toInt() == 1) return false;
    return are_removed_shown_ || rules.index(row, kDelColumn, parent).data().toInt() != 2;
  }

 private:
  bool are_removed_shown_ = false;
};

void MeasureToggle(const Benchmark& benchmark) {
  constexpr int kRules = 100000;
  constexpr int kRemoved = kRules / 10;
  WindowStage stage(std::string(kDollarCalendars) + Rules(7, kRules, true));
  stage.OpenCalendars("USD");
  const QtDatabase database(stage);
  stage.InHolidays([&](QWidget& holidays) {
    auto& rules = GridIn(holidays);
    auto* toggle = holidays.findChild<QAbstractButton*>(QStringLiteral("cmdAction4"));
    bool are_shown = false;
    const auto ours = [&] {
      are_shown = !are_shown;
      const Watch watch;
      const PaintWatch painted(*rules.viewport());
      toggle->click();
      painted.WaitUntilPainted();
      const double time = watch.Milliseconds();
      LetWindowsRest();
      RequireRows(rules.Model()->rowCount(), kRules + 7 - (are_shown ? 0 : kRemoved));
      return time;
    };

    // The toggle reads the rules again, in the window and here.
    QSqlQueryModel model;
    RuleProxy proxy;
    proxy.setSourceModel(&model);
    proxy.sort(0);
    QTableView view;
    view.setModel(&proxy);
    view.resize(rules.size());
    view.show();
    bool are_peers_shown = false;
    const auto peer = [&] {
      are_peers_shown = !are_peers_shown;
      const Watch watch;
      const PaintWatch painted(*view.viewport());
      model.setQuery(QString::fromLatin1(kRuleQuery), QtDatabase::Get());
      while (model.canFetchMore()) model.fetchMore();
      proxy.SetRemovedShown(are_peers_shown);
      view.viewport()->update();
      painted.WaitUntilPainted();
      const double time = watch.Milliseconds();
      LetWindowsRest();
      RequireRows(proxy.rowCount(), kRules + 7 - (are_peers_shown ? 0 : kRemoved));
      return time;
    };
    benchmark.CompareTimes("filter toggle, 100,000 rules, peer: QSortFilterProxyModel", 0.3, ours, peer, 5);
  });
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  return ferrowind::bench::RunBenchmark(argc, argv, [](const Benchmark& benchmark) {
    MeasureSelection(benchmark, "selecting a calendar until painted, peer: QSqlTableModel", 0.6,
                     WindowStage::Additions::kNone);
    MeasureSelection(benchmark, "the same with the additions of the desktop", 1.0,
                     WindowStage::Additions::kAll);
    MeasureAssignment(benchmark);
    MeasureOpening(benchmark);
    MeasureToggle(benchmark);
  });
}
