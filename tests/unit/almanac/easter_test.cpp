#include "ferrowind/almanac/easter.h"

#include <string>

#include <gtest/gtest.h>

#include "ferrowind/platform/values/date.h"

namespace ferrowind::almanac {
namespace {

using platform::Date;

std::string Easter(Church church, int year) {
  return Date::FromSerial(EasterSunday(church, year)).ToIso().substr(5);
}

/// By the method of Butcher's Ecclesiastical Calendar (1876), which has no exceptions.
Date ButchersEaster(int year) {
  const int a = year % 19;
  const int b = year / 100;
  const int c = year % 100;
  const int f = (b + 8) / 25;
  const int g = (b - f + 1) / 3;
  const int h = (19 * a + b - b / 4 - g + 15) % 30;
  const int l = (32 + 2 * (b % 4) + 2 * (c / 4) - h - c % 4) % 7;
  const int m = (a + 11 * h + 22 * l) / 451;
  const int n = h + l - 7 * m + 114;
  return {year, n / 31, n % 31 + 1};
}

/// By the method of Meeus for the Julian calendar, 13 days behind from March 1900 to February 2100, 14 after
/// it.
Date MeeussJulianEaster(int year) {
  const int d = (19 * (year % 19) + 15) % 30;
  const int e = (2 * (year % 4) + 4 * (year % 7) - d + 34) % 7;
  const int n = d + e + 114;
  return Date(year, n / 31, n % 31 + 1).AddDays(year < 2100 ? 13 : 14);
}

TEST(Easter, IsOnTheKnownSundays) {
  EXPECT_EQ(Easter(Church::kWestern, 2024), "03-31");
  EXPECT_EQ(Easter(Church::kWestern, 2025), "04-20");
  EXPECT_EQ(Easter(Church::kWestern, 2026), "04-05");
  EXPECT_EQ(Easter(Church::kWestern, 2038), "04-25");
  EXPECT_EQ(Easter(Church::kOrthodox, 2024), "05-05");
  EXPECT_EQ(Easter(Church::kOrthodox, 2025), "04-20");
  EXPECT_EQ(Easter(Church::kOrthodox, 2026), "04-12");
}

TEST(Easter, IsAWeekEarlierInTheYearsOfTheLateFullMoons) {
  EXPECT_EQ(Easter(Church::kWestern, 1954), "04-18");
  EXPECT_EQ(Easter(Church::kWestern, 1981), "04-19");
  EXPECT_EQ(Easter(Church::kWestern, 2049), "04-18");
  EXPECT_EQ(Easter(Church::kWestern, 2076), "04-19");
}

TEST(Easter, AgreesWithAnotherMethodInEveryYear) {
  for (int year = kFirstYear; year <= kLastYear; ++year) {
    EXPECT_EQ(EasterSunday(Church::kWestern, year), ButchersEaster(year).Serial()) << year;
  }
}

TEST(OrthodoxEaster, AgreesWithAnotherMethodInEveryYear) {
  for (int year = kFirstYear; year <= kLastYear; ++year) {
    EXPECT_EQ(EasterSunday(Church::kOrthodox, year), MeeussJulianEaster(year).Serial()) << year;
  }
}

}  // namespace
}  // namespace ferrowind::almanac
