#pragma once

#include <cstdint>

#include "ferrowind/platform/values/date.h"

/// Days as the serials of `platform::Date`, and the arithmetic that planning does on them thousands of times.
namespace ferrowind::almanac {

/// The serial of a day; the formula of the proleptic Gregorian calendar with years that begin in March.
[[nodiscard]] constexpr std::int32_t SerialOf(int year, int month, int day) {
  const int march_year = month > 2 ? year : year - 1;
  const int century = march_year / 100;
  const int day_of_march_year = (153 * ((month + 9) % 12) + 2) / 5 + day - 1;
  constexpr int kSerialOfFirstMarchYear = -693899;
  return 365 * march_year + march_year / 4 - century + century / 4 + day_of_march_year +
         kSerialOfFirstMarchYear;
}

/// 1 Sunday to 7 Saturday.
[[nodiscard]] constexpr int WeekdayOf(std::int32_t serial) {
  // Serial 1 is a Sunday; the multiple of 7 keeps days before it positive.
  constexpr std::int32_t kWholeWeeks = 7 * 100'000;
  return (serial - 1 + kWholeWeeks) % 7 + 1;
}

[[nodiscard]] constexpr bool IsLeap(int year) {
  return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

[[nodiscard]] constexpr int DaysInMonth(int year, int month) {
  if (month == 2) return IsLeap(year) ? 29 : 28;
  return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

[[nodiscard]] inline int YearOf(std::int32_t serial) { return platform::Date::FromSerial(serial).Year(); }

}  // namespace ferrowind::almanac
