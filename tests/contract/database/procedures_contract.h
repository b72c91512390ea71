#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "ferrowind/platform/values/date.h"

#include "tests/contract/database/database_under_test.h"
#include "tests/contract/database/procedure_caller.h"

namespace ferrowind::contract {

inline constexpr std::int32_t kEuro = 978;
inline constexpr std::int32_t kDollar = 840;
inline constexpr std::int32_t kGold = 959;
inline constexpr std::int32_t kNoCurrency = 1;

/// What the procedures do, on every engine. An engine's test program compiles the files of
/// FERROWIND_PROCEDURES_CONTRACT and instantiates this suite with its own kind of database.
class ProceduresContract : public ::testing::TestWithParam<DatabaseKind<CalendarDatabaseUnderTest>> {
 protected:
  void SetUp() override {
    database_ = GetParam().make();
    caller_.emplace(*database_, kCallsPerConnection);
  }
  void TearDown() override {
    caller_.reset();
    EXPECT_TRUE(database_->IsSound());
  }

  [[nodiscard]] CalendarDatabaseUnderTest& database() { return *database_; }
  [[nodiscard]] ProcedureCaller& caller() { return *caller_; }

  int CreateCalendar(std::int32_t currency, std::int32_t year) {
    return caller().Return("CldIUMain", {{"ID1", currency}, {"Year1", year}});
  }
  /// The days of the euro's calendar of `year`.
  std::vector<Row> Days(std::int32_t year) {
    return RowsOf(*caller().Call("CldGetMain", {{"ID1", kEuro}, {"Year1", year}}).record_sets.at(0));
  }
  /// The day of the euro's calendar, which must exist.
  Row DayOn(platform::Date date) {
    return Days(date.Year()).at(static_cast<std::size_t>(date.DayOfYear()) - 1);
  }
  /// The rules in the order of their numbers.
  std::vector<Row> Rules() { return RowsOf(*caller().Call("CldAllInfo").record_sets.at(2)); }

  std::string Fingerprint(std::int32_t currency, std::int32_t year);
  /// Applies the plan `days` to the calendar as it is now.
  int Apply(std::int32_t currency, std::int32_t year, const std::string& days);
  /// Replaces the book of `currency` as it is now by one of the rules `rules` that holds from `from_year` on.
  int StoreBook(std::int32_t currency, const std::string& rules, const platform::Value& from_year = {});
  int Undo(std::int32_t entry) { return caller().Return("CldUndo", {{"EntryID", entry}}); }
  /// The number of the newest entry of the history; 0 when there is none.
  std::int32_t LastEntry();
  /// The newest entry's moment.
  std::string LastMoment();
  /// All that the procedures show of the content: calendars, days, rules, books, currencies and conventions.
  std::vector<Row> Content();

  /// Adds a rule, which must be possible, and returns its number.
  std::int32_t AddWeekdayRule(const std::string& name, int weekday) {
    return Add({{"Name1", name}, {"TID1", 2}, {"WD", weekday}});
  }
  std::int32_t AddDatedRule(const std::string& name, int type, platform::Date date) {
    return Add({{"Name1", name}, {"TID1", type}, {"D1", date}, {"MY", date.Month()}, {"MD", date.Day()}});
  }

 private:
  /// So that opening connections is not most of the time, and every longer test still goes from one to the
  /// next.
  static constexpr int kCallsPerConnection = 5;

  std::int32_t Add(const Arguments& arguments) {
    EXPECT_EQ(caller().Return("CldIUCelebrate", arguments), 0);
    return *Rules().back().at(0).If<std::int32_t>();
  }

  std::unique_ptr<CalendarDatabaseUnderTest> database_;
  std::optional<ProcedureCaller> caller_;
};

}  // namespace ferrowind::contract
