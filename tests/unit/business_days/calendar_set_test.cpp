#include "ferrowind/business_days/calendar_set.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "calendars.h"
#include "failure_of.h"

namespace ferrowind::business_days {
namespace {

TEST(CalendarSet, FindsCalendarsByTheirCodes) {
  const CalendarSet set(
      {BusinessCalendar("USD", {YearWith(2026)}), BusinessCalendar("EUR", {YearWith(2027)})});
  EXPECT_THAT(set.Codes(), testing::ElementsAre("EUR", "USD"));
  EXPECT_TRUE(set.Of("EUR").IsPrepared(std::chrono::year(2027)));
  EXPECT_EQ(set.Find("JPY"), nullptr);
  EXPECT_EQ(set.Joint({"USD", "EUR"}).Name(), "USD+EUR");
}

TEST(CalendarSet, NamesTheCurrencyThatItLacksOrHasTwice) {
  const BusinessCalendar dollar("USD", {YearWith(2026)});
  EXPECT_EQ(FailureOf([&] { return CalendarSet({dollar}).Of("XYZ").Code(); }), "There is no calendar of XYZ");
  EXPECT_EQ(FailureOf([&] { return CalendarSet({dollar, dollar}); }), "There are two calendars of USD");
}

}  // namespace
}  // namespace ferrowind::business_days
