#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "ferrowind/planning/year_overview.h"
#include "ferrowind/platform/toolkit/year_view.h"

namespace ferrowind {

/// How a day looks on which that many calendars of several are closed, but not all.
[[nodiscard]] platform::DayLook SomeAreClosedLook(std::size_t closed);

/// The row of all calendars together: how many are closed, which, and why. While a calendar is missing or
/// not prepared, no day of it says that all are open.
[[nodiscard]] platform::YearCalendar JointRow(const planning::YearOverview& overview);

/// "Open together on 243 days as far as known; no calendar of JPY; not prepared: EUR; weekends only: USD".
[[nodiscard]] std::string JointSummary(const planning::YearOverview& overview);

/// The holidays and exceptions of all calendars by day, without weekends: "Good Friday (EUR, USD)"; of one
/// calendar without its currency.
[[nodiscard]] std::vector<platform::YearNote> NotesOf(const planning::YearOverview& overview);

}  // namespace ferrowind
