#include "ferrowind/exchange/list_book.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/almanac/comparison.h"
#include "ferrowind/almanac/planner.h"

#include "tests/unit/exchange/lists.h"

namespace ferrowind::exchange {
namespace {

using almanac::CalendarContent;
using almanac::DateExpression;
using almanac::MarkedDay;
using almanac::RuleKind;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int kYear = 2027;
constexpr std::int32_t kSaturday = 2;
constexpr std::int32_t kSunday = 3;
constexpr std::int32_t kNewYear = 4;
constexpr std::int32_t kLabour = 5;

/// A calendar, and a list that is matched with it.
class ListBookTest : public ::testing::Test {
 protected:
  ListBookTest()
      : rules_({{almanac::kExceptionRule, almanac::kExceptionName, RuleKind::kWorkingDay},
                {kSaturday, "Saturday", RuleKind::kWeekday},
                {kSunday, "Sunday", RuleKind::kWeekday},
                {kNewYear, "New Year's Day", RuleKind::kCelebration, 1, 1},
                {kLabour, "Labour Day", RuleKind::kPoint}}) {
    list_.year = kYear;
    now_.year = kYear;
  }

  static int DayOfYear(int month, int day) { return platform::Date(kYear, month, day).DayOfYear(); }

  void Mark(int month, int day, RuleKind kind, std::int32_t rule) {
    now_.days.push_back({static_cast<std::int16_t>(DayOfYear(month, day)), kind, rule, {}});
  }

  /// What the calendar becomes: a line for each day that changes.
  std::vector<std::string> Changes() {
    const ListBook listed =
        BookOf(list_, "a.csv", {now_, rules_, planned_ ? &*planned_ : nullptr, takes_names_});
    remarks_ = listed.remarks;
    other_names_ = listed.other_names;
    const almanac::YearPlan plan = almanac::PlanYear(listed.book, kYear, {});
    const almanac::RuleMatches matches(plan.Book(), rules_);
    const almanac::Comparison comparison(plan, now_, matches);
    std::vector<std::string> changes;
    for (const almanac::ComparedDay& day : comparison.Days()) {
      if (day.action == almanac::PlanAction::kKeep) continue;
      const almanac::ComparisonLine line = comparison.LineOf(day);
      changes.push_back(line.date.ToIso() + ' ' + std::string(almanac::TextOf(line.action)) + ' ' +
                        line.now.value_or("-") + " > " + line.should.value_or("-"));
    }
    return changes;
  }

  void PlanByABook() {
    almanac::RuleBook book{"P", "D", std::nullopt, {}};
    book.rules = {{"Saturday", RuleKind::kWeekday, DateExpression::Parse("weekday Saturday"), "Weekend", {}},
                  {"Sunday", RuleKind::kWeekday, DateExpression::Parse("weekday Sunday"), "Weekend", {}},
                  {"Labour Day", RuleKind::kPoint, DateExpression::Parse("05-03"), "First Monday", {}}};
    planned_ = almanac::PlanYear(book, kYear, {});
  }

  YearList list_;
  CalendarContent now_;
  almanac::RuleDirectory rules_;
  std::optional<almanac::YearPlan> planned_;
  bool takes_names_ = false;
  std::vector<std::string> remarks_;
  std::size_t other_names_ = 0;
};

TEST_F(ListBookTest, ClosesAndOpensDaysAndLeavesWeekends) {
  Mark(1, 1, RuleKind::kCelebration, kNewYear);
  Mark(1, 2, RuleKind::kWeekday, kSaturday);
  Mark(5, 3, RuleKind::kPoint, kLabour);
  list_.days = {Day(kYear, 1, 1, "New Year's Day"), Day(kYear, 12, 24, "Christmas Eve")};
  EXPECT_THAT(Changes(), ElementsAre("2027-05-03 remove Labour Day > -", "2027-12-24 add - > Christmas Eve"));
}

TEST_F(ListBookTest, KeepsTheNamesOfClosedDaysUnlessAskedForTheLists) {
  Mark(1, 1, RuleKind::kCelebration, kNewYear);
  Mark(1, 2, RuleKind::kWeekday, kSaturday);
  list_.days = {Day(kYear, 1, 1, "Neujahr")};
  EXPECT_THAT(Changes(), IsEmpty());
  EXPECT_EQ(other_names_, 1U);
  takes_names_ = true;
  EXPECT_THAT(Changes(), ElementsAre("2027-01-01 replace New Year's Day > Neujahr"));
  list_.days = {Day(kYear, 1, 1)};
  EXPECT_THAT(Changes(), IsEmpty());
}

TEST_F(ListBookTest, NamesNewHolidaysByTheBookThenByTheListThenByNothing) {
  Mark(1, 2, RuleKind::kWeekday, kSaturday);
  PlanByABook();
  list_.days = {Day(kYear, 5, 3, "1er mai"), Day(kYear, 5, 4, "labour day"), Day(kYear, 5, 5)};
  EXPECT_THAT(Changes(), ElementsAre("2027-05-03 add - > Labour Day", "2027-05-04 add - > Labour Day",
                                     "2027-05-05 add - > Bank holiday"));
  takes_names_ = true;
  EXPECT_THAT(Changes(), ElementsAre("2027-05-03 add - > 1er mai", "2027-05-04 add - > Labour Day",
                                     "2027-05-05 add - > Bank holiday"));
}

TEST_F(ListBookTest, TakesTheWeekendsOfANewCalendarFromTheBook) {
  PlanByABook();
  list_.days = {Day(kYear, 5, 3, "Labour Day")};
  const std::vector<std::string> changes = Changes();
  EXPECT_EQ(changes.size(), 52U + 52U + 1U);
  EXPECT_EQ(changes.front(), "2027-01-02 add - > Saturday");
}

TEST_F(ListBookTest, LeavesHolidaysOnWeekendsThatTheListLeavesOut) {
  for (const ListedDay& day : DaysOfWeek(kYear, 7)) {
    const bool is_holiday = day.date == platform::Date(kYear, 5, 1);
    Mark(day.date.Month(), day.date.Day(), is_holiday ? RuleKind::kPoint : RuleKind::kWeekday,
         is_holiday ? kLabour : kSaturday);
  }
  list_.days = {Day(kYear, 12, 24, "Christmas Eve")};
  EXPECT_THAT(Changes(), ElementsAre("2027-12-24 add - > Christmas Eve"));
}

TEST_F(ListBookTest, TakesHolidaysOnWeekendsOfANewCalendarFromTheBook) {
  almanac::RuleBook book{"P", "D", std::nullopt, {}};
  book.rules = {{"Labour Day", RuleKind::kPoint, DateExpression::Parse("05-01"), {}, {}},
                {"Saturday", RuleKind::kWeekday, DateExpression::Parse("weekday Saturday"), {}, {}}};
  planned_ = almanac::PlanYear(book, kYear, {});
  list_.days = {Day(kYear, 12, 24, "Christmas Eve")};
  const std::vector<std::string> changes = Changes();
  EXPECT_EQ(changes.size(), 52U + 1U);
  EXPECT_THAT(changes, ::testing::Contains("2027-05-01 add - > Labour Day"));
}

TEST_F(ListBookTest, IsRefusedWhereNothingTellsWeekends) {
  list_.days = {Day(kYear, 5, 3, "Labour Day")};
  EXPECT_EQ(RefusalOf([&] {
              return BookOf(list_, "a.csv", {now_, rules_, nullptr, false});
            }),
            "Nothing tells which days are weekends in 2027: neither the calendar, nor a book of the "
            "currency, nor the "
            "list");
}

TEST_F(ListBookTest, IsRefusedForYearsThatNoPlanReaches) {
  list_ = {2200, {Day(2200, 1, 1)}};
  now_.year = 2200;
  EXPECT_EQ(RefusalOf([&] {
              return BookOf(list_, "a.csv", {now_, rules_, nullptr, false});
            }),
            "A list of 2200 cannot become a plan: plans reach to 2199");
}

TEST_F(ListBookTest, TakesWeekendsFromAListThatNamesThem) {
  list_.days = DaysOfWeek(kYear, 7);
  EXPECT_EQ(Changes().size(), 52U);
  EXPECT_EQ(Changes().front(), "2027-01-02 add - > Saturday");
  // One more than are listed is opened, but no Sunday.
  Mark(1, 2, RuleKind::kWeekday, kSaturday);
  Mark(1, 3, RuleKind::kWeekday, kSunday);
  list_.days.erase(list_.days.begin());
  EXPECT_EQ(Changes().front(), "2027-01-02 remove Saturday > -");
  EXPECT_EQ(Changes()[1], "2027-01-09 add - > Saturday");
}

TEST_F(ListBookTest, LeavesHalfDaysAsTheyAreAndTellsThem) {
  Mark(1, 2, RuleKind::kWeekday, kSaturday);
  Mark(12, 24, RuleKind::kPoint, kLabour);
  list_.days = {Day(kYear, 12, 24, "Christmas Eve", ListedKind::kHalfDay),
                Day(kYear, 12, 31, {}, ListedKind::kHalfDay)};
  list_.days[0].line = 7;
  EXPECT_THAT(Changes(), IsEmpty());
  EXPECT_THAT(remarks_,
              ElementsAre("Line 7: 2027-12-24 \"Christmas Eve\" is a half day and stays closed as it is",
                          "2027-12-31 is a half day and stays open as it is"));
}

TEST_F(ListBookTest, LeavesWorkingWeekendsAndMakesThoseOfTheList) {
  Mark(1, 2, RuleKind::kWeekday, kSaturday);
  Mark(1, 9, RuleKind::kWorkingDay, almanac::kExceptionRule);
  Mark(1, 16, RuleKind::kWeekday, kSaturday);
  list_.days = {Day(kYear, 1, 16, "Moved", ListedKind::kWorkingDay)};
  EXPECT_THAT(Changes(), ElementsAre("2027-01-16 replace Saturday > Working day by exception"));
}

TEST_F(ListBookTest, OpensADayOfAWeekendThatTheListNames) {
  list_.days = DaysOfWeek(kYear, 7);
  list_.days.front().kind = ListedKind::kWorkingDay;
  EXPECT_EQ(Changes().front(), "2027-01-02 add - > Working day by exception");
  EXPECT_EQ(Changes().size(), 52U);
}

TEST_F(ListBookTest, ClosesAnExceptionThatTheListCloses) {
  Mark(1, 1, RuleKind::kWorkingDay, almanac::kExceptionRule);
  Mark(1, 2, RuleKind::kWeekday, kSaturday);
  list_.days = {Day(kYear, 1, 1, "New Year's Day")};
  EXPECT_THAT(Changes(), ElementsAre("2027-01-01 exception Working day by exception > New Year's Day"));
}

}  // namespace
}  // namespace ferrowind::exchange
