#pragma once

#include <span>
#include <string>
#include <vector>

#include "ferrowind/almanac/calendar_content.h"
#include "ferrowind/planning/currency_list.h"

namespace ferrowind::planning {

/// Those of the days of the year `days` that are worth to be made working days by exception: closed ones, and
/// exceptions, which get another reason. Ascending; ordinary working days stay what they are.
[[nodiscard]] std::vector<std::int16_t> DaysToExcept(const almanac::CalendarContent& calendar,
                                                     std::span<const std::int16_t> days);

/// Makes the days of the calendar working days by exception with that reason: all of them or none, in one
/// call, which is one entry of the history. False, with nothing changed, when the calendar of the calling
/// thread's database is not as it was `seen` any more. Fails as database_call.h says.
[[nodiscard]] bool ExceptDays(const Currency& currency, const almanac::CalendarContent& seen,
                              std::span<const std::int16_t> days, const std::string& reason);

}  // namespace ferrowind::planning
