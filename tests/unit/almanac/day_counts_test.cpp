#include "ferrowind/almanac/day_counts.h"

#include <numeric>

#include <gtest/gtest.h>

#include "ferrowind/platform/values/date.h"

namespace ferrowind::almanac {
namespace {

std::int16_t On(int year, int month, int day) {
  return static_cast<std::int16_t>(platform::Date(year, month, day).DayOfYear());
}

MarkedDay Marked(std::int16_t day, RuleKind kind) { return {.day_of_year = day, .kind = kind}; }

TEST(DayCounts, TakeEveryDayOfAnEmptyCalendarForAWorkingDay) {
  const MonthCounts months = CountDays({2028, {}});
  EXPECT_EQ(months[1].working, 29);
  EXPECT_EQ(Total(months), (DayCounts{.working = 366}));
  EXPECT_EQ(Total(CountDays({2027, {}})).working, 365);
}

TEST(DayCounts, TellWeekendsHolidaysAndExceptionsApart) {
  const MonthCounts months = CountDays(
      {2028,
       {Marked(On(2028, 4, 1), RuleKind::kWeekday), Marked(On(2028, 4, 14), RuleKind::kPoint),
        Marked(On(2028, 4, 17), RuleKind::kCelebration), Marked(On(2028, 4, 29), RuleKind::kWorkingDay),
        Marked(On(2028, 5, 1), RuleKind::kCelebration)}});
  EXPECT_EQ(months[3], (DayCounts{.working = 26, .weekend = 1, .holidays = 2, .exceptions = 1}));
  EXPECT_EQ(months[3].Open(), 27);
  EXPECT_EQ(months[4], (DayCounts{.working = 30, .holidays = 1}));
  EXPECT_EQ(Total(months), (DayCounts{.working = 361, .weekend = 1, .holidays = 3, .exceptions = 1}));
}

TEST(DayCounts, CountDaysOnWhichAllCalendarsAreOpen) {
  const CalendarContent one{2028, {Marked(1, RuleKind::kCelebration), Marked(3, RuleKind::kWorkingDay)}};
  const CalendarContent other{2028, {Marked(1, RuleKind::kPoint), Marked(2, RuleKind::kWeekday)}};
  const CalendarContent* const both[] = {&one, &other};
  const auto months = CountCommonOpenDays(both);
  EXPECT_EQ(months[0], 29);
  EXPECT_EQ(std::accumulate(months.begin(), months.end(), 0), 364);
}

TEST(DayCounts, HaveNoCommonDayWithoutACalendar) {
  const auto months = CountCommonOpenDays({});
  EXPECT_EQ(std::accumulate(months.begin(), months.end(), 0), 0);
}

}  // namespace
}  // namespace ferrowind::almanac
