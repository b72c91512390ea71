#include "ferrowind/almanac/day_count.h"

#include <gtest/gtest.h>

namespace ferrowind::almanac {
namespace {

using platform::Date;

TEST(DayCount, AgreesWithTheDatesOfThePlatform) {
  const std::int32_t last = Date(2202, 12, 31).Serial();
  for (std::int32_t serial = Date(1895, 1, 1).Serial(); serial <= last; ++serial) {
    const Date date = Date::FromSerial(serial);
    ASSERT_EQ(SerialOf(date.Year(), date.Month(), date.Day()), serial) << date.ToIso();
    ASSERT_EQ(WeekdayOf(serial), date.Weekday()) << date.ToIso();
    ASSERT_EQ(YearOf(serial), date.Year());
    ASSERT_LE(date.Day(), DaysInMonth(date.Year(), date.Month()));
    ASSERT_EQ(Date::IsValid(date.Year(), date.Month(), DaysInMonth(date.Year(), date.Month()) + 1), false);
  }
}

}  // namespace
}  // namespace ferrowind::almanac
