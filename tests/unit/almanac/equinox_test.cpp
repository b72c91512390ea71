#include "ferrowind/almanac/equinox.h"

#include <string>

#include <gtest/gtest.h>

#include "ferrowind/platform/values/date.h"

namespace ferrowind::almanac {
namespace {

using platform::Date;

constexpr int kJapan = 9 * 60;

std::string Day(Equinox equinox, int year, int utc_offset_minutes) {
  return Date::FromSerial(DayOfEquinox(equinox, year, utc_offset_minutes)).ToIso();
}

// National Astronomical Observatory of Japan, days of the equinoxes by which the holidays were kept from 1990
// on and as announced or forecast until 2030.
TEST(Equinox, IsOnTheDaysThatJapanKept) {
  const std::string vernal =
      "21 21 20 20 21 21 20 20 21 21 20 20 21 21 20 20 21 21 20 20 21 21 20 20 21 21 20 20 "
      "21 21 20 20 21 21 20 20 20 21 20 20 20";
  const std::string autumnal =
      "23 23 23 23 23 23 23 23 23 23 23 23 23 23 23 23 23 23 23 23 23 23 22 23 23 23 22 23 "
      "23 23 22 23 23 23 22 23 23 23 22 23 23";
  for (int year = 1990; year <= 2030; ++year) {
    const auto place = static_cast<std::size_t>(3 * (year - 1990));
    EXPECT_EQ(Day(Equinox::kVernal, year, kJapan), std::to_string(year) + "-03-" + vernal.substr(place, 2));
    EXPECT_EQ(Day(Equinox::kAutumnal, year, kJapan),
              std::to_string(year) + "-09-" + autumnal.substr(place, 2));
  }
}

// The equinoxes of these years were within three minutes of Japan's midnight, reckoned by a precise
// ephemeris: 24 September 1917 at 0:00:18, 21 March 1927 at 23:59:08, 23 September 2074 at 0:02:58 and 2198
// at 0:02:21.
TEST(Equinox, IsOnTheRightSideOfANearMidnight) {
  EXPECT_EQ(Day(Equinox::kAutumnal, 1917, kJapan), "1917-09-24");
  EXPECT_EQ(Day(Equinox::kVernal, 1927, kJapan), "1927-03-21");
  EXPECT_EQ(Day(Equinox::kAutumnal, 2074, kJapan), "2074-09-23");
  EXPECT_EQ(Day(Equinox::kAutumnal, 2198, kJapan), "2198-09-23");
}

TEST(Equinox, FallsOnTheDayOfTheClocksAsked) {
  // 23 September 2026, 00:05 UTC; 20 March 2026, 14:46 UTC.
  EXPECT_EQ(Day(Equinox::kAutumnal, 2026, 0), "2026-09-23");
  EXPECT_EQ(Day(Equinox::kAutumnal, 2026, -60), "2026-09-22");
  EXPECT_EQ(Day(Equinox::kVernal, 2026, 9 * 60), "2026-03-20");
  EXPECT_EQ(Day(Equinox::kVernal, 2026, 9 * 60 + 30), "2026-03-21");
}

TEST(Equinox, IsKnownForTheYearsBesideThoseThatArePlanned) {
  EXPECT_EQ(Day(Equinox::kVernal, kFirstYear - 2, 0).substr(0, 7), "1898-03");
  EXPECT_EQ(Day(Equinox::kAutumnal, kLastYear + 2, 0).substr(0, 7), "2201-09");
}

}  // namespace
}  // namespace ferrowind::almanac
