#include "ferrowind/almanac/rule_dates.h"

#include <string>
#include <utility>

#include <gmock/gmock.h>

#include "tests/unit/almanac/small_book.h"

namespace ferrowind::almanac {
namespace {

using testing::BookWithWeekends;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// Behind the two weekday rules of the small book.
constexpr std::size_t kFirstRule = 2;

std::vector<RuleYear> YearsOf(const std::string& rules, std::size_t rule, int first_year, int count,
                              const DateTables& tables = {}) {
  return YearsOfRule(Planner(BookWithWeekends(rules), tables), rule, tables, first_year, count);
}

std::vector<std::pair<std::string, bool>> DatesOf(const RuleYear& year) {
  std::vector<std::pair<std::string, bool>> dates;
  for (const RuleDate& date : year.dates) dates.emplace_back(date.date.ToIso(), date.has_day);
  return dates;
}

TEST(RuleDates, AreTheDaysThatTheRuleHasInEachYear) {
  const auto years = YearsOf("point | Good Friday | easter-2 |\n", kFirstRule, 2027, 2);
  ASSERT_THAT(years, SizeIs(2));
  EXPECT_EQ(years[0].year, 2027);
  EXPECT_THAT(DatesOf(years[0]), ElementsAre(std::pair("2027-03-26", true)));
  EXPECT_THAT(DatesOf(years[1]), ElementsAre(std::pair("2028-04-14", true)));
  EXPECT_EQ(years[1].dates[0].why.InEnglish(), "Easter Sunday 16 April 2028, two days before");
  EXPECT_TRUE(years[1].is_known);
}

TEST(RuleDates, TellOfADayFromWhichTheHolidayMovedAway) {
  const auto years = YearsOf("celebration | Fair | 07-04 Saturday to Friday |\n", kFirstRule, 2026, 1);
  ASSERT_THAT(years, SizeIs(1));
  EXPECT_THAT(DatesOf(years[0]), ElementsAre(std::pair("2026-07-03", true), std::pair("2026-07-04", true)));
}

TEST(RuleDates, TellOfADayThatAnotherRuleHas) {
  const auto years =
      YearsOf("celebration | First | 05-01 |\ncelebration | Second | 05-01 |\n", kFirstRule + 1, 2026, 1);
  ASSERT_THAT(years, SizeIs(1));
  EXPECT_THAT(DatesOf(years[0]), ElementsAre(std::pair("2026-05-01", false)));
  EXPECT_THAT(years[0].dates[0].why.InEnglish(), HasSubstr("Second is on this day too"));
}

TEST(RuleDates, TellOfADayOnWhichTheHolidayIsNotObserved) {
  const auto years = YearsOf("celebration | Fair | 08-01 else not observed |\n", kFirstRule, 2026, 1);
  ASSERT_THAT(years, SizeIs(1));
  EXPECT_THAT(DatesOf(years[0]), ElementsAre(std::pair("2026-08-01", false)));
  EXPECT_THAT(years[0].dates[0].why.InEnglish(), HasSubstr("not observed"));
}

TEST(RuleDates, AreUnknownWhereTheTableOfTheRuleDoesNotReach) {
  DateTables tables;
  tables.Add({"moons", 2026, 2026, {platform::Date(2026, 3, 10)}});
  const auto years = YearsOf("point | Moon | table moons |\n", kFirstRule, 2026, 2, tables);
  ASSERT_THAT(years, SizeIs(2));
  EXPECT_TRUE(years[0].is_known);
  EXPECT_THAT(DatesOf(years[0]), ElementsAre(std::pair("2026-03-10", true)));
  EXPECT_FALSE(years[1].is_known);
  EXPECT_THAT(years[1].dates, IsEmpty());
}

TEST(RuleDates, OfYearsBeyondAllPlansAreLeftOut) {
  const auto last = YearsOf("celebration | Fair | 07-01 |\n", kFirstRule, kLastYear, 3);
  ASSERT_THAT(last, SizeIs(1));
  EXPECT_EQ(last[0].year, kLastYear);
  const auto first = YearsOf("celebration | Fair | 07-01 |\n", kFirstRule, kFirstYear - 2, 3);
  ASSERT_THAT(first, SizeIs(1));
  EXPECT_EQ(first[0].year, kFirstYear);
}

TEST(RuleDates, OfYearsBeforeTheBookHoldsAreLeftOut) {
  RuleBook book = BookWithWeekends("celebration | Fair | 07-01 |\n");
  book.since = 2026;
  const auto years = YearsOfRule(Planner(book, {}), kFirstRule, {}, 2025, 2);
  ASSERT_THAT(years, SizeIs(1));
  EXPECT_EQ(years[0].year, 2026);
}

}  // namespace
}  // namespace ferrowind::almanac
