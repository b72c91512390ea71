#include <string>

#include <gtest/gtest.h>

#include "ferrowind/almanac/planner.h"

#include "tests/unit/almanac/small_book.h"

namespace ferrowind::almanac {
namespace {

using ::ferrowind::testing::BookWithWeekends;
using platform::Date;

YearPlan PlanFor(const std::string& rules, int year) {
  DateTables tables;
  tables.Add({"feast", 2025, 2028, {Date(2025, 5, 5), Date(2026, 5, 6)}});
  return PlanYear(BookWithWeekends(rules), year, tables);
}

std::string Why(const std::string& rules, const Date& date) {
  return PlanFor(rules, date.Year()).WhyOf(date.DayOfYear()).InEnglish();
}

std::string Comment(const std::string& rules, const Date& date) {
  const YearPlan plan = PlanFor(rules, date.Year());
  const PlannedDay* day = plan.Find(date.DayOfYear());
  return day == nullptr ? "an ordinary working day" : plan.CommentOf(*day);
}

TEST(WhyOf, TellsOfTheBaseOfEachForm) {
  EXPECT_EQ(Why("celebration | A | 05-01", {2028, 5, 1}), "1 May");
  EXPECT_EQ(Why("point | A | 2022-09-19", {2022, 9, 19}), "Once, on 19 September 2022");
  EXPECT_EQ(Why("point | A | easter-2", {2028, 4, 14}), "Easter Sunday 16 April 2028, two days before");
  EXPECT_EQ(Why("point | A | easter+1", {2028, 4, 17}), "Easter Sunday 16 April 2028, one day after");
  EXPECT_EQ(Why("point | A | easter+39", {2028, 5, 25}), "Easter Sunday 16 April 2028, 39 days after");
  EXPECT_EQ(Why("point | A | orthodox", {2027, 5, 2}), "Orthodox Easter Sunday 2 May 2027");
  EXPECT_EQ(Why("point | A | 4th Thursday of 11", {2028, 11, 23}), "Fourth Thursday of November 2028");
  EXPECT_EQ(Why("point | A | last Monday of 05", {2028, 5, 29}), "Last Monday of May 2028");
  EXPECT_EQ(Why("point | A | vernal equinox +09:00", {2026, 3, 20}),
            "Day of the vernal equinox 2026 at UTC+09:00");
  EXPECT_EQ(Why("point | A | autumnal equinox -03:30", {2026, 9, 22}),
            "Day of the autumnal equinox 2026 at UTC-03:30");
  EXPECT_EQ(Why("point | A | table feast", {2026, 5, 6}), "6 May 2026 of the table feast");
  EXPECT_EQ(Why("point | A | table feast+2", {2026, 5, 8}), "6 May 2026 of the table feast, two days after");
  EXPECT_EQ(Why("", {2026, 1, 3}), "Every Saturday");
}

TEST(WhyOf, TellsWhatAWeekdayIsRelatedTo) {
  EXPECT_EQ(Why("point | A | Monday on or after 05-18", {2026, 5, 18}), "Monday on or after 18 May 2026");
  EXPECT_EQ(Why("point | A | Friday after 4th Thursday of 11", {2026, 11, 27}),
            "Friday after the fourth Thursday of November 2026");
  EXPECT_EQ(Why("point | A | Monday before Friday before easter", {2026, 3, 30}),
            "Monday before the Friday before Easter Sunday 5 April 2026");
  EXPECT_EQ(Why("point | A | Monday after vernal equinox +09:00", {2026, 3, 23}),
            "Monday after the day of the vernal equinox 2026 at UTC+09:00");
  EXPECT_EQ(Why("point | A | Monday after 2026-07-08", {2026, 7, 13}), "Monday after 8 July 2026");
  EXPECT_EQ(Why("point | A | Monday after table feast", {2026, 5, 11}),
            "Monday after a day of the table feast");
}

TEST(WhyOf, TellsTheYearOfADateFromTheYearBefore) {
  EXPECT_EQ(Why("point | A | easter+300", {2028, 1, 22}), "Easter Sunday 28 March 2027, 300 days after");
  EXPECT_EQ(Why("point | A | Monday on or after 12-30", {2027, 1, 4}), "Monday on or after 30 December 2026");
}

TEST(WhyOf, TellsTheYearsAndWeekdaysThatLimitARule) {
  EXPECT_EQ(Why("celebration | A | 05-01 from 2020 to 2030", {2028, 5, 1}),
            "1 May, from 2020 on, until 2030");
  EXPECT_EQ(Why("celebration | A | 05-01 only 2026, 2027, 2028", {2028, 5, 1}),
            "1 May, only in 2026, 2027 and 2028");
  EXPECT_EQ(Why("celebration | A | 05-01 only 2022, 2024, 2026, 2027, 2028", {2028, 5, 1}),
            "1 May, only in certain years");
  EXPECT_EQ(Why("celebration | A | 05-01 if monday, friday", {2028, 5, 1}),
            "1 May, only on a Monday or a Friday");
}

TEST(WhyOf, TellsOffWhichDayASubstituteMoved) {
  EXPECT_EQ(Why("celebration | Christmas Day | 12-25 to next free day | | Christmas Day (substitute day)",
                {2027, 12, 27}),
            "25 December 2027 is a Saturday; moved to the next free day");
  EXPECT_EQ(Why("celebration | A | 07-04 saturday to friday", {2026, 7, 3}),
            "4 July 2026 is a Saturday; moved to Friday");
  EXPECT_EQ(Why("celebration | A | 07-04 to previous monday", {2026, 6, 29}),
            "4 July 2026 is a Saturday; moved to the previous Monday");
  EXPECT_EQ(Why("point | A | 10-12 thursday to previous monday", {2028, 10, 9}),
            "12 October 2028 is a Thursday; moved to the previous Monday");
}

TEST(WhyOf, TellsWhoseSubstituteADayOfASharedNameIs) {
  EXPECT_EQ(
      Why("celebration | Constitution Memorial Day | 05-03 sunday to next free day | | Substitute Holiday",
          {2026, 5, 4}),
      "Constitution Memorial Day, 3 May 2026, is a Sunday; moved to the next free day");
}

TEST(WhyOf, TellsWhichHolidayHasTheDayThatAnotherMovedOff) {
  EXPECT_EQ(
      Why("point | Buddha's Birthday | 2025-05-05\ncelebration | Children's Day | 05-05 to next free day",
          {2025, 5, 6}),
      "5 May 2025 is taken by Buddha's Birthday; moved to the next free day");
}

TEST(WhyOf, TakesAFormerWeekendForTheWorkingDayItIs) {
  // 9 July 2026 is a Thursday.
  EXPECT_EQ(Why("weekday | Thursday | weekday Thursday to 2012\npoint | A | 2026-07-09\n"
                "celebration | B | 07-09 to next free day",
                {2026, 7, 10}),
            "9 July 2026 is taken by A; moved to the next free day");
}

TEST(WhyOf, TellsBetweenWhichHolidaysADayIs) {
  EXPECT_EQ(Why("celebration | A | 07-07\ncelebration | B | 07-09\npoint | C | between", {2026, 7, 8}),
            "Between A and B");
  EXPECT_EQ(Why("celebration | A | 12-31\ncelebration | B | 01-02\npoint | C | between", {2026, 1, 1}),
            "Between two holidays");
}

TEST(WhyOf, TellsOfTheOtherHolidayOnTheDay) {
  EXPECT_EQ(Why("celebration | A | 05-01\npoint | B | 1st Monday of 05", {2028, 5, 1}),
            "1 May; B is on this day too: First Monday of May 2028");
}

TEST(WhyOf, TellsWhatAWorkingDayOpens) {
  EXPECT_EQ(Why("working day | W | 2026-02-14", {2026, 2, 14}),
            "Once, on 14 February 2026; a working Saturday");
  EXPECT_EQ(Why("celebration | A | 05-01\nworking day | W | 2026-05-01", {2026, 5, 1}),
            "Once, on 1 May 2026; A is on this day too: 1 May");
}

TEST(WhyOf, TellsOfAnOrdinaryDayWhatIsNotObservedOnIt) {
  EXPECT_EQ(Why("celebration | A | 05-01", {2028, 5, 2}), "An ordinary working day");
  EXPECT_EQ(Why("point | A | 10-12 thursday to previous monday", {2028, 10, 12}),
            "An ordinary working day; A moved from here to 9 October 2028");
  EXPECT_EQ(Why("celebration | A | 07-04 else not observed", {2026, 7, 4}),
            "Every Saturday; A is not observed on a closed day: 4 July");
}

TEST(CommentOf, IsTheRulesOwnUnlessItIsASubstitute) {
  EXPECT_EQ(Comment("celebration | A | 05-01 | On 1 May", {2026, 5, 1}), "On 1 May");
  EXPECT_EQ(Comment("point | A | 10-12 thursday to previous monday | Mid October", {2028, 10, 9}),
            "Mid October");
  EXPECT_EQ(Comment("", {2026, 1, 3}), "");
}

TEST(CommentOf, TellsWhenASubstituteIs) {
  EXPECT_EQ(Comment("celebration | A | 07-04 sunday to monday | 4 July", {2027, 7, 5}),
            "The Monday, when 4 July is a Sunday");
  EXPECT_EQ(Comment("celebration | A | 07-04 saturday, sunday to next free day | 4 July", {2027, 7, 5}),
            "First free weekday, when 4 July is on a weekend");
  EXPECT_EQ(Comment("celebration | A | 07-04 to next free day | 4 July", {2027, 7, 5}),
            "First free weekday, when 4 July is a closed day");
  EXPECT_EQ(Comment("celebration | A | 07-04 to previous free day | 4 July", {2027, 7, 2}),
            "Last free weekday before, when 4 July is a closed day");
  EXPECT_EQ(Comment("celebration | A | 07-04 sunday, taken to next tuesday | 4 July", {2027, 7, 6}),
            "The next Tuesday, when 4 July is a Sunday or another holiday");
  EXPECT_EQ(Comment("point | B | 2028-07-04\ncelebration | A | 07-04 taken to next free day | 4 July",
                    {2028, 7, 5}),
            "First free weekday, when 4 July is another holiday");
}

TEST(CommentOf, IsOfAnyHolidayWhenRulesShareTheName) {
  const std::string rules =
      "celebration | A | 07-04 sunday to next free day | | S\ncelebration | B | 07-06 sunday to next free "
      "day | | S\n";
  EXPECT_EQ(Comment(rules, {2027, 7, 5}), "First free weekday, when a holiday is on a Sunday");
  EXPECT_EQ(Comment("point | A | 1st Sunday of 07 saturday, sunday, taken to monday", {2027, 7, 5}),
            "The Monday, when a holiday is on a weekend or another holiday");
}

}  // namespace
}  // namespace ferrowind::almanac
