#include "ferrowind/business_days/day_table.h"

#include <chrono>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "calendars.h"
#include "failure_of.h"

namespace ferrowind::business_days {
namespace {

using namespace std::chrono_literals;
using std::chrono::sys_days;

std::string RefusalOf(const std::vector<PreparedYear>& years) {
  return FailureOf([&] { return DayTable(years); });
}

TEST(DayTable, RefusesWhatIsNoYear) {
  EXPECT_EQ(RefusalOf({{2026y, "01"}}), "The year 2026 has 365 days, not 2");
  EXPECT_EQ(RefusalOf({{2028y, std::string(365, '0')}}), "The year 2028 has 366 days, not 365");
  EXPECT_EQ(RefusalOf({{2026y, std::string(364, '0') + "x"}}),
            "The year 2026 has neither 0 nor 1 for its day 365");
  EXPECT_EQ(RefusalOf({YearWith(2026), YearWith(2027), YearWith(2026)}), "The year 2026 is there twice");
  EXPECT_EQ(RefusalOf({{1899y, std::string(365, '0')}}), "The year 1899 is outside 1900 to 3000");
  EXPECT_EQ(RefusalOf({{3001y, std::string(365, '0')}}), "The year 3001 is outside 1900 to 3000");
}

TEST(CalendarYear, IsNoOtherOneOfANumberThatAYearCannotKeep) {
  EXPECT_EQ(CalendarYear(2026), 2026y);
  for (const int number : {65536 + 2026, 2026 - 65536, 1899, 3001}) {
    EXPECT_EQ(FailureOf([&] { return CalendarYear(number); }),
              "The year " + std::to_string(number) + " is outside 1900 to 3000");
  }
}

TEST(DayTable, KnowsTheFirstAndTheLastDayOfTheSpan) {
  const DayTable table({YearWith(1900), YearWith(3000)});
  EXPECT_EQ(table.At(sys_days(1899y / 12 / 31)), DayState::kNotPrepared);
  EXPECT_EQ(table.At(sys_days(1900y / 1 / 1)), DayState::kOpen);
  EXPECT_EQ(table.At(sys_days(1901y / 1 / 1)), DayState::kNotPrepared);
  EXPECT_EQ(table.At(sys_days(3000y / 12 / 31)), DayState::kOpen);
  EXPECT_EQ(table.At(sys_days(3001y / 1 / 1)), DayState::kNotPrepared);
  const auto prepared = table.Prepared();
  ASSERT_TRUE(prepared);
  EXPECT_EQ(prepared->first, sys_days(1900y / 1 / 1));
  EXPECT_EQ(prepared->last, sys_days(3000y / 12 / 31));
}

TEST(DayTable, TakesDaysFarFromAllCalendarsForNotPrepared) {
  const DayTable table(std::vector{YearWith(2026)});
  for (const int days : {1'000'000'000, -1'000'000'000}) {
    EXPECT_EQ(table.At(sys_days(std::chrono::days(days))), DayState::kNotPrepared);
  }
  // As far away as a count of 32 bits takes to come round.
  EXPECT_EQ(table.At(sys_days(2026y / 1 / 1) + std::chrono::days(std::int64_t{1} << 32)),
            DayState::kNotPrepared);
}

TEST(DayTable, HasNothingPreparedWithoutAYear) {
  const DayTable table{std::vector<PreparedYear>{}};
  EXPECT_FALSE(table.Prepared());
  EXPECT_EQ(table.At(sys_days(2026y / 1 / 1)), DayState::kNotPrepared);
  EXPECT_FALSE(table.OpenDayAfter(sys_days(2026y / 1 / 1), 1));
}

TEST(DayTable, KnowsItsLongestClosure) {
  EXPECT_EQ(DayTable({YearWith(2026)}).LongestClosure(), 2);
  EXPECT_EQ(DayTable({YearWith(2026), {2027y, std::string(365, '1')}}).LongestClosure(), 365);
}

}  // namespace
}  // namespace ferrowind::business_days
