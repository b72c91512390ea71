#include "ferrowind/almanac/planner.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/failure_of.h"
#include "tests/support/says.h"
#include "tests/unit/almanac/small_book.h"

namespace ferrowind::almanac {
namespace {

using ::ferrowind::testing::BookOf;
using ::ferrowind::testing::BookWithWeekends;
using ::ferrowind::testing::FailureOf;
using ::ferrowind::testing::Says;
using platform::Date;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

DateTables Tables() {
  DateTables tables;
  tables.Add(
      {"feast", 2025, 2027, {Date(2025, 5, 5), Date(2025, 12, 31), Date(2026, 5, 6), Date(2027, 1, 1)}});
  return tables;
}

YearPlan PlanOf(const std::string& rules, int year) {
  return PlanYear(BookWithWeekends(rules), year, Tables());
}

/// The days of the year that have other rules than the weekends, as "12-25 3 Christmas Day" with the kind's
/// number.
std::vector<std::string> Days(const YearPlan& plan) {
  std::vector<std::string> texts;
  for (const PlannedDay& day : plan.Days()) {
    if (plan.KindOf(day) == RuleKind::kWeekday) continue;
    texts.push_back(plan.DateOf(day).ToIso().substr(5) + ' ' +
                    std::to_string(static_cast<int>(plan.KindOf(day))) + ' ' + plan.NameOf(day));
  }
  return texts;
}

std::vector<std::string> Days(const std::string& rules, int year) { return Days(PlanOf(rules, year)); }

TEST(Planner, ClosesTheWeekdaysOfTheBook) {
  const YearPlan plan = PlanOf("", 2026);
  EXPECT_EQ(plan.Year(), 2026);
  EXPECT_EQ(plan.Days().size(), 104U);
  const PlannedDay* saturday = plan.Find(3);
  ASSERT_NE(saturday, nullptr);
  EXPECT_EQ(plan.NameOf(*saturday), "Saturday");
  EXPECT_EQ(plan.KindOf(*saturday), RuleKind::kWeekday);
  EXPECT_EQ(saturday->standing, Standing::kBase);
  EXPECT_EQ(plan.DateOf(*saturday), Date(2026, 1, 3));
  EXPECT_EQ(plan.Find(1), nullptr);
  EXPECT_EQ(plan.Find(5), nullptr);
}

TEST(Planner, HasDaysAscendingWithinTheYear) {
  const YearPlan plan =
      PlanOf("celebration | A | 12-31 to next free day\ncelebration | B | 01-01 to next free day\n", 2028);
  int last = 0;
  for (const PlannedDay& day : plan.Days()) {
    EXPECT_GT(day.day_of_year, last);
    last = day.day_of_year;
  }
  EXPECT_EQ(last, 366);
}

TEST(Planner, ChangesWeekendsWithTheYears) {
  const std::string rules =
      "weekday | Thursday | weekday Thursday to 2012\nweekday | Friday | weekday Friday\n"
      "weekday | Saturday | weekday Saturday from 2013";
  const auto names = [&](int year) {
    const YearPlan plan = PlanYear(BookOf(rules), year, {});
    std::string text;
    for (int day = 1; day <= 7; ++day)
      text += plan.Find(day) == nullptr ? "-" : plan.NameOf(*plan.Find(day)).substr(0, 2);
    return text;
  };
  // 1 January is a Sunday in 2012 and a Tuesday in 2013.
  EXPECT_EQ(names(2012), "----ThFr-");
  EXPECT_EQ(names(2013), "---FrSa--");
}

TEST(Planner, GivesAWeekdayToTheFirstOfItsRules) {
  const YearPlan plan = PlanOf("weekday | Sabbath | weekday Saturday", 2026);
  EXPECT_EQ(plan.NameOf(*plan.Find(3)), "Saturday");
}

TEST(Planner, LetsTheWeekdayGiveWayToAHoliday) {
  EXPECT_THAT(Days("celebration | Christmas Day | 12-25", 2027), ElementsAre("12-25 3 Christmas Day"));
}

TEST(Planner, GivesADayToTheFirstOfTwoRules) {
  EXPECT_THAT(Days("celebration | A | 05-01\ncelebration | B | 05-01", 2026), ElementsAre("05-01 3 A"));
  EXPECT_THAT(Days("celebration | B | 05-01\ncelebration | A | 05-01", 2026), ElementsAre("05-01 3 B"));
}

TEST(Planner, KeepsAHolidayWithoutMovesWhereItFalls) {
  // 4 July 2026 is a Saturday.
  EXPECT_THAT(Days("celebration | A | 07-04", 2026), ElementsAre("07-04 3 A"));
}

TEST(Planner, MovesAHolidayOnlyOffTheWeekdaysItNames) {
  const std::string rule = "celebration | A | 07-04 sunday to monday";
  EXPECT_THAT(Days(rule, 2026), ElementsAre("07-04 3 A"));
  EXPECT_THAT(Days(rule, 2027), ElementsAre("07-04 3 A", "07-05 4 A (observed)"));
  EXPECT_THAT(Days(rule, 2028), ElementsAre("07-04 3 A"));
}

TEST(Planner, NamesTheMovedDayAsTheRuleSays) {
  EXPECT_THAT(Days("celebration | A | 07-04 to monday | c | A's day off", 2027),
              ElementsAre("07-04 3 A", "07-05 4 A's day off"));
}

TEST(Planner, MovesToTheNearestWeekdayEitherWay) {
  const std::string rule = "celebration | A | 07-04 saturday to friday sunday to monday";
  EXPECT_THAT(Days(rule, 2026), ElementsAre("07-03 4 A (observed)", "07-04 3 A"));
  EXPECT_THAT(Days(rule, 2027), ElementsAre("07-04 3 A", "07-05 4 A (observed)"));
  // Three days to either side.
  EXPECT_THAT(Days("point | A | 2026-07-08 wednesday to sunday", 2026), ElementsAre("07-05 4 A"));
  EXPECT_THAT(Days("point | A | 2026-07-08 wednesday to saturday", 2026), ElementsAre("07-11 4 A"));
}

TEST(Planner, MovesToTheNextOrPreviousWeekday) {
  // 8 July 2026 is a Wednesday.
  EXPECT_THAT(Days("point | A | 2026-07-08 wednesday to next tuesday", 2026), ElementsAre("07-14 4 A"));
  EXPECT_THAT(Days("point | A | 2026-07-08 wednesday to next wednesday", 2026), ElementsAre("07-15 4 A"));
  EXPECT_THAT(Days("point | A | 2026-07-08 wednesday to previous thursday", 2026), ElementsAre("07-02 4 A"));
  EXPECT_THAT(Days("point | A | 2026-07-08 wednesday to previous wednesday", 2026), ElementsAre("07-01 4 A"));
}

TEST(Planner, LeavesAWorkingDayBehindWhenItMovesOffOne) {
  const YearPlan plan = PlanOf("point | A | 10-12 tuesday, wednesday, thursday to previous monday", 2028);
  EXPECT_THAT(Days(plan), ElementsAre("10-09 4 A"));
  EXPECT_EQ(plan.Find(Date(2028, 10, 12).DayOfYear()), nullptr);
  EXPECT_EQ(plan.Find(Date(2028, 10, 9).DayOfYear())->standing, Standing::kMoved);
}

TEST(Planner, TakesTheFirstMoveThatHolds) {
  EXPECT_THAT(Days("celebration | A | 07-04 sunday to tuesday sunday to monday to wednesday", 2027),
              ElementsAre("07-04 3 A", "07-06 4 A (observed)"));
  EXPECT_THAT(Days("celebration | A | 07-04 sunday to tuesday saturday to next free day", 2026),
              ElementsAre("07-04 3 A", "07-06 4 A (observed)"));
}

TEST(Planner, MovesOffAnyClosedDayWithoutConditions) {
  // 5 May 2025 is a Monday.
  EXPECT_THAT(Days("point | A | 2025-05-05\ncelebration | B | 05-05 to next free day", 2025),
              ElementsAre("05-05 4 A", "05-06 4 B (observed)"));
  EXPECT_THAT(Days("celebration | B | 05-05 to next free day\npoint | A | 2025-05-05", 2025),
              ElementsAre("05-05 3 B"));
}

TEST(Planner, MovesOffATakenDayByThatCondition) {
  const std::string rules = "point | A | table feast\ncelebration | B | 05-05 taken to next free day\n";
  EXPECT_THAT(Days(rules, 2025), ElementsAre("05-05 4 A", "05-06 4 B (observed)", "12-31 4 A"));
  // A weekend alone takes nothing; 5 May 2024 is a Sunday.
  EXPECT_THAT(Days("celebration | B | 05-05 taken to next free day\n", 2024), ElementsAre("05-05 3 B"));
  EXPECT_THAT(Days("celebration | B | 05-05 sunday to next free day\npoint | A | 2025-05-05\n", 2025),
              ElementsAre("05-05 3 B"));
}

TEST(Planner, CountsADayAsTakenByAHolidayThatMovedThere) {
  // 4 July 2027 is a Sunday.
  EXPECT_THAT(Days("celebration | A | 07-04 to monday\ncelebration | B | 07-05 taken to next free day", 2027),
              ElementsAre("07-04 3 A", "07-05 4 A (observed)", "07-06 4 B (observed)"));
}

TEST(Planner, CountsNoDayAsTakenByARuleBehindItInTheBook) {
  EXPECT_THAT(Days("celebration | A | 07-05 taken to next free day\ncelebration | B | 07-04 to monday", 2027),
              ElementsAre("07-04 3 B", "07-05 3 A"));
}

TEST(Planner, PassesWeekendsBasesAndMovedDaysOnTheWayToAFreeDay) {
  const std::string rules =
      "celebration | Christmas Day | 12-25 to next free day | | Christmas Day (substitute day)\n"
      "celebration | Boxing Day | 12-26 to next free day | | Boxing Day (substitute day)\n";
  // Saturday and Sunday; Sunday and Monday; Friday and Saturday.
  EXPECT_THAT(Days(rules, 2027),
              ElementsAre("12-25 3 Christmas Day", "12-26 3 Boxing Day",
                          "12-27 4 Christmas Day (substitute day)", "12-28 4 Boxing Day (substitute day)"));
  EXPECT_THAT(Days(rules, 2022), ElementsAre("12-25 3 Christmas Day", "12-26 3 Boxing Day",
                                             "12-27 4 Christmas Day (substitute day)"));
  EXPECT_THAT(Days(rules, 2026), ElementsAre("12-25 3 Christmas Day", "12-26 3 Boxing Day",
                                             "12-28 4 Boxing Day (substitute day)"));
}

TEST(Planner, PassesTheBaseOfALaterRuleOnTheWayToAFreeDay) {
  // 3 May 2026 is a Sunday; 4 and 5 May are holidays of their own.
  EXPECT_THAT(Days("celebration | A | 05-03 sunday to next free day | | S\ncelebration | B | 05-04 sunday to "
                   "next free day | | S\n"
                   "celebration | C | 05-05 sunday to next free day | | S",
                   2026),
              ElementsAre("05-03 3 A", "05-04 3 B", "05-05 3 C", "05-06 4 S"));
}

TEST(Planner, MovesToThePreviousFreeDay) {
  EXPECT_THAT(Days("celebration | A | 07-05 to previous free day\ncelebration | B | 07-03", 2026),
              ElementsAre("07-02 4 A (observed)", "07-03 3 B", "07-05 3 A"));
}

TEST(Planner, MovesInTheOrderOfBaseDatesThenOfTheBook) {
  // Both on Saturday 4 July 2026: the first of the book gets Monday. B's base comes before A's in the second.
  EXPECT_THAT(
      Days("celebration | A | 07-04 to next free day\ncelebration | B | 07-04 to next free day", 2026),
      ElementsAre("07-04 3 A", "07-06 4 A (observed)", "07-07 4 B (observed)"));
  EXPECT_THAT(
      Days("celebration | A | 07-05 to next free day\ncelebration | B | 07-04 to next free day", 2026),
      ElementsAre("07-04 3 B", "07-05 3 A", "07-06 4 B (observed)", "07-07 4 A (observed)"));
}

TEST(Planner, MovesAcrossTheTurnOfTheYearBothWays) {
  // 1 January 2028 is a Saturday, 31 December 2028 a Sunday.
  const std::string rules =
      "celebration | A | 01-01 saturday to friday\ncelebration | B | 12-31 sunday to monday\n";
  // Both are on 31 December 2027, and the first of the book has it.
  EXPECT_THAT(Days(rules, 2027), ElementsAre("01-01 3 A", "12-31 4 A (observed)"));
  EXPECT_THAT(Days("celebration | A | 01-01 saturday to friday\n", 2027),
              ElementsAre("01-01 3 A", "12-31 4 A (observed)"));
  EXPECT_THAT(Days("celebration | A | 01-01 saturday to friday\n", 2028), ElementsAre("01-01 3 A"));
  EXPECT_THAT(Days("celebration | B | 12-31 sunday to monday\n", 2028), ElementsAre("12-31 3 B"));
  EXPECT_THAT(Days("celebration | B | 12-31 sunday to monday\n", 2029),
              ElementsAre("01-01 4 B (observed)", "12-31 3 B"));
}

TEST(Planner, JudgesAMoveAcrossTheTurnByTheYearOfItsBase) {
  const std::string rule = "celebration | B | 12-31 sunday to monday to 2028\n";
  EXPECT_THAT(Days(rule, 2029), ElementsAre("01-01 4 B (observed)"));
}

TEST(Planner, LeavesAHolidayInPlaceWhenNoDayIsFreeForAMonth) {
  std::string rules = "celebration | A | 07-04 to next free day\n";
  for (int day = 5; day <= 31; ++day)
    rules += "point | B | 2026-07-" + std::string(day < 10 ? "0" : "") + std::to_string(day) + "\n";
  for (int day = 1; day <= 4; ++day) rules += "point | B | 2026-08-0" + std::to_string(day) + "\n";
  EXPECT_EQ(Days(rules + "point | B | 2026-08-05\n", 2026).size(), 33U);
  EXPECT_EQ(Days(rules, 2026).size(), 32U);
  EXPECT_EQ(Days(rules, 2026).back(), "08-04 4 B");
  const std::string shorter = rules.substr(0, rules.rfind("point"));
  EXPECT_EQ(Days(shorter, 2026).back(), "08-04 4 A (observed)");
}

TEST(Planner, DropsAHolidayThatIsNotObservedOnAClosedDay) {
  const std::string rule = "celebration | A | 07-04 else not observed\n";
  EXPECT_THAT(Days(rule, 2026), IsEmpty());
  EXPECT_THAT(Days(rule, 2028), ElementsAre("07-04 3 A"));
  EXPECT_THAT(Days("celebration | A | 07-04 sunday to monday else not observed\n", 2027),
              ElementsAre("07-04 3 A", "07-05 4 A (observed)"));
  EXPECT_THAT(Days("celebration | B | 07-04\ncelebration | A | 07-04 else not observed\n", 2028),
              ElementsAre("07-04 3 B"));
}

TEST(Planner, ClosesTheDayBetweenTwoHolidays) {
  // In 2026 the third Monday of September is the 21st and the equinox of Japan is on the 23rd; in 2027 they
  // are the 20th and the 23rd.
  const std::string rules =
      "point | A | 3rd Monday of 09\npoint | B | autumnal equinox +09:00\npoint | C | between\n";
  EXPECT_THAT(Days(rules, 2026), ElementsAre("09-21 4 A", "09-22 4 C", "09-23 4 B"));
  EXPECT_THAT(Days(rules, 2027), ElementsAre("09-20 4 A", "09-23 4 B"));
}

TEST(Planner, ClosesNoDayBetweenThatIsClosedAlready) {
  // Friday and Sunday; a holiday of another rule; a working day.
  EXPECT_THAT(Days("celebration | A | 07-03\ncelebration | B | 07-05\npoint | C | between\n", 2026),
              ElementsAre("07-03 3 A", "07-05 3 B"));
  EXPECT_THAT(
      Days("point | C | between\ncelebration | A | 07-07\ncelebration | B | 07-08\ncelebration | D | 07-09\n",
           2026),
      ElementsAre("07-07 3 A", "07-08 3 B", "07-09 3 D"));
  EXPECT_THAT(Days("celebration | A | 07-07\ncelebration | B | 07-09\npoint | C | between\nworking day | W | "
                   "2026-07-08\n",
                   2026),
              ElementsAre("07-07 3 A", "07-09 3 B"));
}

TEST(Planner, ClosesNoDayBetweenMovedDaysOrWhereAHolidayLeft) {
  // The substitute of Sunday 5 July is on Monday, so Tuesday would be between it and Wednesday.
  EXPECT_THAT(Days("celebration | A | 07-05 to monday\ncelebration | B | 07-08\npoint | C | between\n", 2026),
              ElementsAre("07-05 3 A", "07-06 4 A (observed)", "07-08 3 B"));
  EXPECT_THAT(
      Days("point | A | 07-07 tuesday to monday\ncelebration | B | 07-09\npoint | C | between\n", 2026),
      ElementsAre("07-06 4 A", "07-09 3 B"));
}

TEST(Planner, ClosesADayBetweenTwoYears) {
  EXPECT_THAT(Days("celebration | A | 12-31\ncelebration | B | 01-02\npoint | C | between\n", 2026),
              ElementsAre("01-01 4 C", "01-02 3 B", "12-31 3 A"));
}

TEST(Planner, ClosesDaysBetweenInTheirYearsAndOnTheirWeekdaysOnly) {
  const std::string rules = "celebration | A | 07-07\ncelebration | B | 07-09\n";
  EXPECT_EQ(Days(rules + "point | C | between from 2026\n", 2026).size(), 3U);
  EXPECT_EQ(Days(rules + "point | C | between from 2027\n", 2026).size(), 2U);
  EXPECT_EQ(Days(rules + "point | C | between if wednesday\n", 2026).size(), 3U);
  EXPECT_EQ(Days(rules + "point | C | between if friday\n", 2026).size(), 2U);
}

TEST(Planner, OpensADayThatARuleMakesAWorkingDay) {
  // A Saturday, and a holiday whose rule stands before the other.
  EXPECT_THAT(Days("working day | W | 2026-02-14", 2026), ElementsAre("02-14 1 W"));
  EXPECT_THAT(Days("celebration | A | 05-01\nworking day | W | 2026-05-01", 2026), ElementsAre("05-01 1 W"));
}

TEST(Planner, LeavesADayThatIsOpenAnywayToTheOrdinary) {
  EXPECT_THAT(Days("working day | W | 2026-02-12", 2026), IsEmpty());
}

TEST(Planner, TakesAWorkingDayNeitherForClosedNorForFree) {
  // Saturday 4 July 2026 is open: a holiday on it does not move; one before it passes over it.
  EXPECT_THAT(Days("celebration | A | 07-04 to next free day\nworking day | W | 2026-07-04", 2026),
              ElementsAre("07-04 1 W"));
  EXPECT_THAT(Days("celebration | A | 07-05 to previous free day\nworking day | W | 2026-07-04", 2026),
              ElementsAre("07-03 4 A (observed)", "07-04 1 W", "07-05 3 A"));
}

TEST(Planner, OpensEveryWeekOfAWorkingWeekday) {
  const YearPlan plan = PlanOf("working day | W | weekday Saturday", 2026);
  EXPECT_EQ(Days(plan).size(), 52U);
  EXPECT_EQ(Days(plan).front(), "01-03 1 W");
}

TEST(Planner, SaysWhichTableDoesNotReachTheYear) {
  const YearPlan plan = PlanOf("point | A | table feast\npoint | B | Monday after table fast\n", 2028);
  EXPECT_THAT(Days(plan), IsEmpty());
  ASSERT_EQ(plan.Unknown().size(), 2U);
  EXPECT_EQ(plan.Unknown()[0].rule, 2U);
  EXPECT_EQ(plan.Unknown()[0].table, "feast");
  EXPECT_EQ(plan.Unknown()[0].first_year, 2025);
  EXPECT_EQ(plan.Unknown()[0].last_year, 2027);
  EXPECT_EQ(plan.Unknown()[1].last_year, 0);
  EXPECT_THAT(
      plan.Incomplete(),
      ElementsAre(Says("The date of A in 2028 is not known: the table feast reaches from 2025 to 2027"),
                  Says("The date of B in 2028 is not known: there is no table fast")));
}

TEST(Planner, IsCompleteWhereTheTableReachesOrTheRuleDoesNotHold) {
  EXPECT_THAT(PlanOf("point | A | table feast\n", 2025).Unknown(), IsEmpty());
  EXPECT_THAT(PlanOf("point | A | table feast to 2027\n", 2028).Unknown(), IsEmpty());
  EXPECT_THAT(PlanOf("point | A | table feast from 2025\n", 2024).Unknown(), IsEmpty());
}

TEST(Planner, KnowsTheDateOfATableThatAnotherRuleOfTheNameHas) {
  const std::string rules = "point | A | table feast\npoint | A | 2028-05-09\n";
  EXPECT_THAT(Days(rules, 2028), ElementsAre("05-09 4 A"));
  EXPECT_THAT(PlanOf(rules, 2028).Unknown(), IsEmpty());
  EXPECT_EQ(PlanOf(rules, 2029).Unknown().size(), 1U);
  EXPECT_EQ(PlanOf("point | A | table feast\npoint | B | 2028-05-09\n", 2028).Unknown().size(), 1U);
}

TEST(Planner, TakesNoDateForAnnouncedThatATableGivesToAYearThatItDoesNotReach) {
  // 1 January 2027 and 365 days is in 2028, and nobody knows what else is.
  EXPECT_EQ(PlanOf("point | A | table feast\npoint | A | table feast+365\n", 2028).Unknown().size(), 2U);
  EXPECT_EQ(PlanOf("point | A | table fast\npoint | A | table feast\n", 2028).Unknown().size(), 2U);
}

TEST(Planner, MissesTheDatesThatTheBookSaysAreUnknown) {
  const std::string rules = "point | A | unknown from 2027 not 2029\n";
  EXPECT_THAT(PlanOf(rules, 2026).Unknown(), IsEmpty());
  EXPECT_THAT(PlanOf(rules, 2027).Incomplete(),
              ElementsAre(Says("The date of A in 2027 is not known: the book has no day of that year yet")));
  EXPECT_EQ(PlanOf(rules, 2199).Unknown().size(), 1U);
  EXPECT_THAT(PlanOf(rules, 2029).Unknown(), IsEmpty()) << "there is none in 2029";
  const std::string announced = rules + "point | A | 2027-05-05\n";
  EXPECT_THAT(Days(PlanOf(announced, 2027)), ElementsAre("05-05 4 A"));
  EXPECT_THAT(PlanOf(announced, 2027).Unknown(), IsEmpty());
  EXPECT_EQ(PlanOf(announced, 2028).Unknown().size(), 1U);
  EXPECT_EQ(PlanOf("working day | A | unknown\n", 2026).Unknown().size(), 1U);
}

TEST(Planner, MissesDatesThatComeOutOfANeighbouringYear) {
  // 31 December 2025 and a day is in 2026; what 2024 would give 2025 is not known.
  EXPECT_THAT(Days("point | A | table feast+1\n", 2026), ElementsAre("01-01 4 A", "05-07 4 A"));
  EXPECT_EQ(PlanOf("point | A | table feast+1\n", 2025).Unknown().size(), 1U);
  EXPECT_EQ(PlanOf("point | A | table feast-1\n", 2027).Unknown().size(), 1U);
  EXPECT_THAT(PlanOf("point | A | table feast-1\n", 2026).Unknown(), IsEmpty());
}

TEST(Planner, PlansTheFirstAndTheLastYearAndNoOther) {
  const Planner planner(BookWithWeekends("point | A | vernal equinox +00:00\npoint | B | easter-366\n"),
                        Tables());
  EXPECT_EQ(planner.Plan(kFirstYear).Year(), kFirstYear);
  EXPECT_EQ(planner.Plan(kLastYear).Year(), kLastYear);
  EXPECT_EQ(FailureOf([&] { (void)planner.Plan(1899); }).Description(),
            "Years can be planned from 1900 to 2199, not 1899");
  EXPECT_EQ(FailureOf([&] { (void)planner.Plan(2200); }).Number(),
            platform::failure_number::kInvalidArgument);
}

TEST(Planner, PlansNoYearBeforeTheFirstOfTheBook) {
  const Planner planner(BookWithWeekends("since 2015\ncelebration | A | 12-31 to next free day\n"), {});
  EXPECT_TRUE(planner.Reaches(2015));
  EXPECT_EQ(planner.Plan(2015).Year(), 2015);
  EXPECT_FALSE(planner.Reaches(2014));
  EXPECT_EQ(FailureOf([&] { (void)planner.Plan(2014); }).Description(),
            "The book of The Bank holds from 2015 on, so it does not tell what 2014 should be");
  EXPECT_FALSE(planner.Reaches(kLastYear + 1));
}

TEST(Planner, PlansABookOfTenThousandRules) {
  std::string rules;
  for (int i = 0; i < 10'000; ++i)
    rules += "point | Day " + std::to_string(i) + " | easter to next free day\n";
  const YearPlan plan = PlanOf(rules, 2026);
  // Easter Sunday and the weekdays of the month after it.
  EXPECT_EQ(Days(plan).size(), 1U + 23U);
}

TEST(YearPlan, OutlivesTheBookTheTablesAndThePlanner) {
  const YearPlan plan = [] {
    return Planner(BookWithWeekends("point | A | table feast"), Tables()).Plan(2025);
  }();
  EXPECT_THAT(Days(plan), ElementsAre("05-05 4 A", "12-31 4 A"));
  EXPECT_EQ(plan.Book().rules.size(), 3U);
}

}  // namespace
}  // namespace ferrowind::almanac
