#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "ferrowind/planning/year_overview.h"
#include "ferrowind/platform/toolkit/year_view.h"

namespace ferrowind {

/// Above several calendars stands a row that says on which days they are open together.
inline constexpr const char* kJointCalendar = "joint";

/// What a year view shows of the calendars: weekends, holidays and exceptions, each with a shape or a letter
/// of its own; no day of a calendar that closes none, or does not exist, looks open.
[[nodiscard]] platform::YearContent YearContentOf(const planning::YearOverview& overview,
                                                  const platform::Date& today);

/// The keys of calendars in such a content.
[[nodiscard]] std::string YearCalendarKey(const planning::Currency& currency);
/// The position of the calendar in the overview; nothing for the row of all of them.
[[nodiscard]] std::optional<std::size_t> CalendarOfKey(const planning::YearOverview& overview,
                                                       const std::string& key);

/// "EUR 2028", "EUR, USD 2028", "ALL (Lek) 2028".
[[nodiscard]] std::string HeadingOf(const planning::YearOverview& overview);

}  // namespace ferrowind
