#pragma once

#include <string>

#include "ferrowind/adapters/year_engine/year_days.h"

namespace ferrowind::win32 {

/// What tooltips and assistive tools say of a day: "Friday, April 14, 2028, Good Friday, closed"; of several
/// calendars with the calendar's in front.
[[nodiscard]] std::wstring TextOfDay(const year_engine::YearDays& days, const year_engine::YearPlace& place);

}  // namespace ferrowind::win32
