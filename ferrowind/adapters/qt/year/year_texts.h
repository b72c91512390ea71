#pragma once

#include <QLocale>
#include <QString>

#include "ferrowind/adapters/year_engine/year_days.h"

namespace ferrowind::qt {

/// What tooltips and assistive tools say of a day: "Friday 14 April 2028, Good Friday, closed"; of several
/// calendars with the calendar's in front.
[[nodiscard]] QString TextOfDay(const year_engine::YearDays& days, const year_engine::YearPlace& place,
                                const QLocale& locale);

}  // namespace ferrowind::qt
