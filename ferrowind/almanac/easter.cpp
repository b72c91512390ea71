#include "ferrowind/almanac/easter.h"

#include "ferrowind/almanac/day_count.h"

namespace ferrowind::almanac {
namespace {

/// By Gauss's rule as corrected by Lilius: the Sunday after the full moon of the tables.
std::int32_t WesternEaster(int year) {
  const int golden = year % 19;
  const int century = year / 100;
  const int epact = (century - century / 4 - (8 * century + 13) / 25 + 19 * golden + 15) % 30;
  // Two full moons of a cycle come a day earlier, so that none is later than 18 April and none comes twice.
  const int full_moon = epact - (epact == 29 || (epact == 28 && golden > 10) ? 1 : 0);
  const std::int32_t after_full_moon = SerialOf(year, 3, 22) + full_moon;
  return after_full_moon + (8 - WeekdayOf(after_full_moon)) % 7;
}

/// The same in the Julian calendar, whose tables were never corrected.
std::int32_t OrthodoxEaster(int year) {
  const int epact = (19 * (year % 19) + 15) % 30;
  const int century = year / 100;
  const int calendars_apart = century - century / 4 - 2;
  const std::int32_t after_full_moon = SerialOf(year, 3, 22) + calendars_apart + epact;
  return after_full_moon + (8 - WeekdayOf(after_full_moon)) % 7;
}

}  // namespace

std::int32_t EasterSunday(Church church, int year) {
  return church == Church::kWestern ? WesternEaster(year) : OrthodoxEaster(year);
}

}  // namespace ferrowind::almanac
