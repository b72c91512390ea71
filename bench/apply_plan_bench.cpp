// A year's calendar made by one plan, against the single calls that make the same calendar; and the marked
// days of many calendars, against the same rows read by the database's own library.

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include <sqlite3.h>

#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/date.h"

#include "bench/measurement.h"
#include "bench/temporary_folder.h"

namespace {

using ferrowind::bench::Benchmark;
using ferrowind::bench::KeepResult;
using ferrowind::bench::TemporaryFolder;
using ferrowind::platform::CallOutcome;
using ferrowind::platform::Date;
using ferrowind::platform::Value;

constexpr int kEuro = 978;
constexpr int kDollar = 840;
/// Of these the rules 2 and 3 are Saturday and Sunday, and the holidays follow.
constexpr int kFirstHoliday = 4;
constexpr int kHolidays = 11;

class Calendars {
 public:
  explicit Calendars(const std::string& path) : connection_string_("sqlite:" + path) {
    ApplyPlan(kEuro, 1900);
  }

  CallOutcome Call(const std::string& procedure, const std::vector<Value>& inputs) {
    CallOutcome outcome = engine_.Connect(connection_string_)->Call(procedure, inputs);
    if (outcome.return_value != 0) throw std::runtime_error(procedure + " failed");
    return outcome;
  }

  void ApplyPlan(int currency, int year) {
    const auto fingerprint = Call("CldGetFingerprint", {currency, year}).record_sets.at(0);
    Call("CldApplyPlan", {currency, year, (*fingerprint)["Fingerprint"], PlanOf(year)});
  }

  void MakeSingleCalls(int currency, int year) {
    Call("CldIUMain", {currency, year, {}, {}, {}, {}, {}});
    for (const int rule : {2, 3}) Call("CldIUMain", {currency, year, 2, rule, {}, {}, {}});
    for (int holiday = 0; holiday < kHolidays; ++holiday) {
      const Date date = HolidayOf(year, holiday);
      Call("CldIUMain", {currency, year, 4, kFirstHoliday + holiday, date.DayOfYear(), date, {}});
    }
  }

 private:
  static Date HolidayOf(int year, int holiday) { return {year, holiday + 1, 10}; }

  static std::string PlanOf(int year) {
    std::vector<std::string> dates(2 + kHolidays);
    const auto add = [&](std::size_t rule, const Date& date) {
      dates[rule] += (dates[rule].empty() ? "\"" : ", \"") + date.ToIso() + "\"";
    };
    for (Date date(year, 1, 1); date.Year() == year; date = date.AddDays(1)) {
      const bool is_holiday = date.Day() == 10 && date.Month() <= kHolidays;
      if (is_holiday) {
        add(static_cast<std::size_t>(date.Month()) + 1, date);
      } else if (date.Weekday() == 7) {
        add(0, date);
      } else if (date.Weekday() == 1) {
        add(1, date);
      }
    }
    std::string plan = "[";
    for (std::size_t rule = 0; rule < dates.size(); ++rule) {
      plan += (rule == 0 ? "" : ", ") + std::string(R"({"Name1": "Rule )") + std::to_string(rule) +
              R"(", "TID1": )" + (rule < 2 ? "2" : "4") + R"(, "Dates": [)" + dates[rule] + "]}";
    }
    return plan + "]";
  }

  std::string connection_string_;
  ferrowind::sqlite::Engine engine_;
};

void RequireEqual(Calendars& calendars, int year) {
  const auto fingerprint = [&](int currency) {
    return ferrowind::platform::ToText(
        (*calendars.Call("CldGetFingerprint", {currency, year}).record_sets.at(0))["Fingerprint"]);
  };
  if (fingerprint(kEuro) != fingerprint(kDollar)) throw std::runtime_error("the calendars differ");
}

void Require(bool is_true, sqlite3* database) {
  if (!is_true) throw std::runtime_error(sqlite3_errmsg(database));
}

std::size_t ReadMarkedDays(const std::string& path) {
  sqlite3* database = nullptr;
  Require(sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK, database);
  sqlite3_stmt* statement = nullptr;
  Require(sqlite3_prepare_v2(database,
                             "SELECT ID1, Year1, Day1, TID1, ID2, Comment FROM CldDay WHERE ID2 IS NOT NULL"
                             " ORDER BY ID1, Year1, Day1",
                             -1, &statement, nullptr) == SQLITE_OK,
          database);
  std::size_t rows = 0;
  std::size_t sum = 0;
  for (; sqlite3_step(statement) == SQLITE_ROW; ++rows) {
    for (int column = 0; column < 5; ++column) {
      sum += static_cast<std::size_t>(sqlite3_column_int64(statement, column));
    }
    sum += static_cast<std::size_t>(sqlite3_column_bytes(statement, 5));
  }
  KeepResult(sum);
  sqlite3_finalize(statement);
  sqlite3_close(database);
  return rows;
}

}  // namespace

int main(int argc, char** argv) {
  return ferrowind::bench::RunBenchmark(argc, argv, [](const Benchmark& benchmark) {
    const TemporaryFolder folder;
    ferrowind::sqlite::CreateDatabase(folder.File());
    Calendars calendars(folder.File());
    int planned = 2000;
    int called = 2000;
    benchmark.Compare("CldApplyPlan of a year, peer: the single calls", 0.5,
                      {[&] { calendars.ApplyPlan(kEuro, planned++); }},
                      {[&] { calendars.MakeSingleCalls(kDollar, called++); }});
    for (int year = 2000; year < called; ++year) RequireEqual(calendars, year);

    for (const int currency : {kEuro, kDollar}) {
      for (int year = 2100; year < 2750; ++year) calendars.ApplyPlan(currency, year);
    }
    benchmark.Compare(
        "CldGetMarkedDays of 1300 calendars, peer: raw sqlite3", 1.5, {[&] {
          KeepResult(calendars.Call("CldGetMarkedDays", {1900, 3000}).record_sets.at(0)->RowCount());
        }},
        {[&] { KeepResult(ReadMarkedDays(folder.File())); }});
  });
}
