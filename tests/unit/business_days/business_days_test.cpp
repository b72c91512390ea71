#include "ferrowind/business_days/business_days.h"

#include <chrono>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/business_days/business_calendar.h"
#include "ferrowind/business_days/day_failures.h"

#include "calendars.h"
#include "failure_of.h"

namespace ferrowind::business_days {
namespace {

using namespace std::chrono_literals;
using std::chrono::April;
using std::chrono::December;
using std::chrono::January;
using std::chrono::May;
using std::chrono::sys_days;

BusinessCalendar Euro() {
  return {"EUR",
          {YearWith(2026, {January / 1, April / 3, April / 6, May / 1, December / 25}),
           YearWith(2027, {January / 1}), YearWith(2029, {January / 1})}};
}

TEST(BusinessDays, HaveThreeAnswers) {
  const BusinessCalendar euro = Euro();
  EXPECT_EQ(euro.State(2026y / 4 / 2), DayState::kOpen);
  EXPECT_EQ(euro.State(2026y / 4 / 3), DayState::kClosed);
  EXPECT_EQ(euro.State(2028y / 4 / 3), DayState::kNotPrepared);
  EXPECT_TRUE(euro.IsBusinessDay(2026y / 4 / 2));
  EXPECT_FALSE(euro.IsBusinessDay(2026y / 4 / 4));
}

TEST(BusinessDays, NameCurrencyAndYearOfAQuestionThatDependsOnADayNotPrepared) {
  const BusinessCalendar euro = Euro();
  EXPECT_EQ(FailureOf([&] { return euro.IsBusinessDay(2028y / 4 / 3); }), "EUR 2028 is not prepared");
  EXPECT_EQ(FailureOf([&] { return euro.Next(2027y / 12 / 31); }), "EUR 2028 is not prepared");
  EXPECT_EQ(FailureOf([&] { return euro.AddBusinessDays(2027y / 12 / 30, 2); }), "EUR 2028 is not prepared");
  EXPECT_EQ(FailureOf([&] { return euro.AddBusinessDays(2026y / 1 / 2, -1); }), "EUR 2025 is not prepared");
  EXPECT_EQ(FailureOf([&] { return euro.BusinessDaysBetween(2027y / 1 / 1, 2029y / 1 / 1); }),
            "EUR 2028 is not prepared");
  EXPECT_EQ(FailureOf([&] { return euro.ClosedDays(2027y / 12 / 25, 2028y / 1 / 1); }),
            "EUR 2028 is not prepared");
}

TEST(BusinessDays, AnswerWhateverDoesNotDependOnIt) {
  const BusinessCalendar euro = Euro();
  EXPECT_EQ(euro.AddBusinessDays(2027y / 12 / 30, 1), sys_days(2027y / 12 / 31));
  EXPECT_EQ(euro.AddBusinessDays(2028y / 12 / 31, 1), sys_days(2029y / 1 / 2));
  EXPECT_EQ(euro.Adjust(2028y / 4 / 3, Convention::kUnadjusted), sys_days(2028y / 4 / 3));
  EXPECT_EQ(euro.BusinessDaysBetween(2028y / 4 / 3, 2028y / 4 / 3), 0);
  // The next day would be in another month, so nothing is asked of it.
  const BusinessCalendar shut_at_the_end("AAA", {YearWith(2026, {December / 31})});
  EXPECT_EQ(shut_at_the_end.Adjust(2026y / 12 / 31, Convention::kModifiedFollowing),
            sys_days(2026y / 12 / 30));
}

TEST(BusinessDays, AreAdjustedByEachConvention) {
  const BusinessCalendar euro = Euro();
  // Good Friday to Easter Monday.
  const sys_days good_friday = 2026y / 4 / 3;
  EXPECT_EQ(euro.Adjust(good_friday, Convention::kFollowing), sys_days(2026y / 4 / 7));
  EXPECT_EQ(euro.Adjust(good_friday, Convention::kPreceding), sys_days(2026y / 4 / 2));
  EXPECT_EQ(euro.Adjust(good_friday, Convention::kNearest), sys_days(2026y / 4 / 2));
  EXPECT_EQ(euro.Adjust(2026y / 4 / 6, Convention::kNearest), sys_days(2026y / 4 / 7));
  // Saturday, 31 January.
  EXPECT_EQ(euro.Adjust(2026y / 1 / 31, Convention::kFollowing), sys_days(2026y / 2 / 2));
  EXPECT_EQ(euro.Adjust(2026y / 1 / 31, Convention::kModifiedFollowing), sys_days(2026y / 1 / 30));
  // New Year's Day: back would be another month.
  EXPECT_EQ(euro.Adjust(2027y / 1 / 1, Convention::kModifiedPreceding), sys_days(2027y / 1 / 4));
  // Sunday, 15 March: the half of the month ends with it.
  EXPECT_EQ(euro.Adjust(2026y / 3 / 15, Convention::kModifiedFollowingBimonthly), sys_days(2026y / 3 / 13));
  EXPECT_EQ(euro.Adjust(2026y / 3 / 15, Convention::kModifiedFollowing), sys_days(2026y / 3 / 16));
}

TEST(BusinessDays, AreAddedFromAClosedDayAsFromTheOneBeforeIt) {
  const BusinessCalendar euro = Euro();
  EXPECT_EQ(euro.AddBusinessDays(2026y / 4 / 4, 0), sys_days(2026y / 4 / 4));
  EXPECT_EQ(euro.AddBusinessDays(2026y / 4 / 4, 1), sys_days(2026y / 4 / 7));
  EXPECT_EQ(euro.AddBusinessDays(2026y / 4 / 4, -1), sys_days(2026y / 4 / 2));
  EXPECT_EQ(euro.BusinessDaysBetween(2026y / 4 / 2, 2026y / 4 / 7), 1);
  EXPECT_EQ(euro.BusinessDaysBetween(2026y / 4 / 7, 2026y / 4 / 2), -1);
}

TEST(BusinessDays, EndAMonthOnItsLastBusinessDay) {
  const BusinessCalendar euro = Euro();
  EXPECT_EQ(euro.LastBusinessDayOfMonth(2026y / 1 / 10), sys_days(2026y / 1 / 30));
  EXPECT_TRUE(euro.IsLastBusinessDayOfMonth(2026y / 1 / 30));
  EXPECT_FALSE(euro.IsLastBusinessDayOfMonth(2026y / 1 / 31));
}

TEST(BusinessDays, FailRatherThanSearchForEverWhereNothingIsOpen) {
  const std::string shut(365, '1');
  const BusinessCalendar calendar("AAA", {YearWith(2024), {2025y, shut}, {2026y, shut}, YearWith(2027)});
  EXPECT_EQ(FailureOf([&] { return calendar.Next(2024y / 12 / 31); }),
            "no business day of AAA within a year after 2024-12-31");
  EXPECT_EQ(FailureOf([&] { return calendar.AddBusinessDays(2024y / 12 / 30, 2); }),
            "no business day of AAA within a year after 2024-12-31");
  EXPECT_EQ(FailureOf([&] { return calendar.LastBusinessDayOfMonth(2025y / 2 / 3); }),
            "no business day of AAA from 2025-02-01 to 2025-02-28");
}

TEST(BusinessDays, ListTheClosedDays) {
  EXPECT_EQ(Euro().ClosedDays(2026y / 4 / 2, 2026y / 4 / 7),
            (std::vector<sys_days>{2026y / 4 / 3, 2026y / 4 / 4, 2026y / 4 / 5, 2026y / 4 / 6}));
}

TEST(BusinessDays, TellTheirHorizon) {
  const BusinessCalendar euro = Euro();
  ASSERT_TRUE(euro.Horizon());
  EXPECT_EQ(euro.Horizon()->first, sys_days(2026y / 1 / 1));
  EXPECT_EQ(euro.Horizon()->last, sys_days(2029y / 12 / 31));
  EXPECT_TRUE(euro.IsPrepared(2029y));
  EXPECT_FALSE(euro.IsPrepared(2028y));
  EXPECT_FALSE(BusinessCalendar("AAA", {}).Horizon());
}

TEST(BusinessDays, NameTheCalendarWhoseYearIsWrong) {
  EXPECT_EQ(FailureOf([] {
              BusinessCalendar("EUR", {YearWith(2026), YearWith(2026)});
            }),
            "EUR: The year 2026 is there twice");
}

TEST(BusinessDays, AnswerManyThreadsAtATime) {
  const BusinessCalendar euro = Euro();
  std::vector<std::jthread> threads;
  std::vector<int> counts(8);
  for (int& count : counts) {
    threads.emplace_back([&count, calendar = euro] {
      for (sys_days day = 2026y / 1 / 1; day <= sys_days(2027y / 12 / 31); day += std::chrono::days(1))
        count += calendar.IsBusinessDay(day) ? 1 : 0;
    });
  }
  threads.clear();
  for (const int count : counts) EXPECT_EQ(count, euro.BusinessDaysBetween(2025y / 12 / 31, 2027y / 12 / 31));
}

}  // namespace
}  // namespace ferrowind::business_days
