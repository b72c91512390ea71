#include "ferrowind/platform/values/date.h"

#include <cstdint>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/failure_of.h"

namespace ferrowind::platform {
namespace {

using ::ferrowind::testing::FailureOf;

TEST(Date, CountsItsSerialFromThirtyDecember1899) {
  EXPECT_EQ(Date(1899, 12, 30).Serial(), 0);
  EXPECT_EQ(Date(1899, 12, 31).Serial(), 1);
  EXPECT_EQ(Date(1899, 12, 29).Serial(), -1);
  EXPECT_EQ(Date(2026, 1, 1).Serial(), 46023);
}

TEST(Date, ReturnsFromItsSerialUnchanged) {
  for (const Date date : {Date(1, 1, 1), Date(1900, 2, 28), Date(2024, 2, 29), Date(9999, 12, 31)}) {
    EXPECT_EQ(Date::FromSerial(date.Serial()), date);
  }
}

TEST(Date, RefusesASerialOutsideTheYears1To9999) {
  const std::int32_t first = Date(1, 1, 1).Serial();
  const std::int32_t last = Date(9999, 12, 31).Serial();
  for (const std::int32_t serial : {first - 1, last + 1, std::numeric_limits<std::int32_t>::min(),
                                    std::numeric_limits<std::int32_t>::max()}) {
    EXPECT_EQ(FailureOf([&] { (void)Date::FromSerial(serial); }).Number(), failure_number::kOverflow);
  }
}

TEST(Date, KnowsWhichDaysThereAre) {
  EXPECT_TRUE(Date::IsValid(2024, 2, 29));
  EXPECT_TRUE(Date::IsValid(2000, 2, 29));
  EXPECT_TRUE(Date::IsValid(1, 1, 1));
  EXPECT_TRUE(Date::IsValid(9999, 12, 31));
  EXPECT_FALSE(Date::IsValid(2026, 2, 29));
  EXPECT_FALSE(Date::IsValid(1900, 2, 29));
  EXPECT_FALSE(Date::IsValid(2026, 4, 31));
  EXPECT_FALSE(Date::IsValid(2026, 0, 1));
  EXPECT_FALSE(Date::IsValid(2026, 13, 1));
  EXPECT_FALSE(Date::IsValid(2026, 1, 0));
  EXPECT_FALSE(Date::IsValid(2026, 1, -1));
  EXPECT_FALSE(Date::IsValid(2026, 257, 1));
  EXPECT_FALSE(Date::IsValid(2026, 1, 257));
  EXPECT_FALSE(Date::IsValid(0, 1, 1));
  EXPECT_FALSE(Date::IsValid(10000, 1, 1));
}

TEST(Date, WritesAndReadsIsoText) {
  EXPECT_EQ(Date(2026, 3, 7).ToIso(), "2026-03-07");
  EXPECT_EQ(Date(1, 1, 1).ToIso(), "0001-01-01");
  EXPECT_EQ(Date::FromIso("2026-03-07"), Date(2026, 3, 7));
  EXPECT_EQ(Date::FromIso("9999-12-31"), Date(9999, 12, 31));
}

TEST(Date, ReadsNothingButFullIsoText) {
  for (const std::string text :
       {"", "2026", "2026-3-7", "2026-03-07 ", " 2026-03-07", "2026/03/07", "20260307", "2026-02-30",
        "0000-01-01", "2026-00-01", "+026-03-07", "2026-03-0x", "2026-03-07T00:00"}) {
    EXPECT_EQ(Date::FromIso(text), std::nullopt) << text;
  }
}

TEST(Date, CountsTheDaysOfTheYearFromOne) {
  EXPECT_EQ(Date(2026, 1, 1).DayOfYear(), 1);
  EXPECT_EQ(Date(2026, 3, 1).DayOfYear(), 60);
  EXPECT_EQ(Date(2024, 3, 1).DayOfYear(), 61);
  EXPECT_EQ(Date(2026, 12, 31).DayOfYear(), 365);
  EXPECT_EQ(Date(2024, 12, 31).DayOfYear(), 366);
}

TEST(Date, CountsTheWeekdaysFromSunday) {
  EXPECT_EQ(Date(2026, 11, 22).Weekday(), 1);
  EXPECT_EQ(Date(2026, 11, 23).Weekday(), 2);
  EXPECT_EQ(Date(2026, 11, 28).Weekday(), 7);
  EXPECT_EQ(Date(1, 1, 1).Weekday(), 2);
}

TEST(Date, TheSerialsOneToSevenAreSundayToSaturday) {
  for (std::int32_t serial = 1; serial <= 7; ++serial) EXPECT_EQ(Date::FromSerial(serial).Weekday(), serial);
}

TEST(Date, MovesByYearsOnTheSameDayAndMonth) {
  EXPECT_EQ(Date(2026, 12, 25).AddYears(1), Date(2027, 12, 25));
  EXPECT_EQ(Date(2026, 12, 25).AddYears(-26), Date(2000, 12, 25));
  EXPECT_EQ(Date(2024, 2, 29).AddYears(4), Date(2028, 2, 29));
}

TEST(Date, MovesTheLeapDayToThe28thInACommonYear) {
  EXPECT_EQ(Date(2024, 2, 29).AddYears(1), Date(2025, 2, 28));
  EXPECT_EQ(Date(2024, 2, 29).AddYears(-124), Date(1900, 2, 28));
}

TEST(Date, RefusesToMoveOutOfTheYears1To9999) {
  constexpr int kMost = std::numeric_limits<int>::max();
  constexpr int kLeast = std::numeric_limits<int>::min();
  for (const int years : {7974, -2026, kMost, kLeast}) {
    EXPECT_EQ(FailureOf([&] { (void)Date(2026, 1, 1).AddYears(years); }).Number(), failure_number::kOverflow);
  }
  for (const int days : {kMost, kLeast}) {
    EXPECT_EQ(FailureOf([&] { (void)Date(2026, 1, 1).AddDays(days); }).Number(), failure_number::kOverflow);
  }
  EXPECT_EQ(FailureOf([] { (void)Date(9999, 12, 31).AddDays(1); }).Number(), failure_number::kOverflow);
}

TEST(Date, MovesByDaysOverMonthsAndYears) {
  EXPECT_EQ(Date(2024, 2, 28).AddDays(1), Date(2024, 2, 29));
  EXPECT_EQ(Date(2026, 12, 31).AddDays(1), Date(2027, 1, 1));
  EXPECT_EQ(Date(2026, 1, 1).AddDays(-1), Date(2025, 12, 31));
}

TEST(Date, OrdersByTime) {
  EXPECT_LT(Date(2025, 12, 31), Date(2026, 1, 1));
  EXPECT_GT(Date(2026, 2, 1), Date(2026, 1, 31));
  EXPECT_EQ(Date(2026, 1, 1), Date(2026, 1, 1));
}

TEST(Date, KnowsLeapYearsAndTheDaysOfAYear) {
  EXPECT_TRUE(IsLeapYear(2024));
  EXPECT_TRUE(IsLeapYear(2000));
  EXPECT_FALSE(IsLeapYear(2026));
  EXPECT_FALSE(IsLeapYear(1900));
  EXPECT_EQ(DaysInYear(2024), 366);
  EXPECT_EQ(DaysInYear(2026), 365);
}

}  // namespace
}  // namespace ferrowind::platform
