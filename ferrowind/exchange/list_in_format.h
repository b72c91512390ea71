#pragma once

#include <optional>
#include <string>

#include "ferrowind/exchange/icalendar_format.h"
#include "ferrowind/exchange/list_format.h"
#include "ferrowind/exchange/listed_day.h"
#include "ferrowind/exchange/year_list.h"

namespace ferrowind::exchange {

/// A list as a text of that format. `revision` is needed for iCalendar alone. Precondition: each day has a
/// currency, and a list in plain text has only one.
[[nodiscard]] std::string WriteList(const DayList& list, ListFormat format, const ICalendarFormat& icalendar,
                                    const Revision& revision);

/// The days of a list, in UTF-8 (list_text.h). `wanted` bounds the events of calendar files that repeat. What
/// cannot be read is a `ListError` that tells each line.
[[nodiscard]] DayList ReadList(const std::string& text, ListFormat format, const ICalendarFormat& icalendar,
                               const std::optional<WantedYears>& wanted);

}  // namespace ferrowind::exchange
