#pragma once

#include <cstdint>

#include "ferrowind/almanac/date_expression.h"

namespace ferrowind::almanac {

/// The serial (`platform::Date`) of Easter Sunday, in the Gregorian calendar for both churches.
[[nodiscard]] std::int32_t EasterSunday(Church church, int year);

}  // namespace ferrowind::almanac
