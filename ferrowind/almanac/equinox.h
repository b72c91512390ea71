#pragma once

#include <cstdint>

#include "ferrowind/almanac/date_expression.h"

namespace ferrowind::almanac {

/// The serial (`platform::Date`) of the day of the equinox by clocks that are so many minutes ahead of UTC.
/// Good to a minute or two; at UTC+09:00 every day of the years 1900 to 2199 agrees with a precise ephemeris.
/// Precondition: a year from `kFirstYear` - 2 to `kLastYear` + 2.
[[nodiscard]] std::int32_t DayOfEquinox(Equinox equinox, int year, int utc_offset_minutes);

}  // namespace ferrowind::almanac
