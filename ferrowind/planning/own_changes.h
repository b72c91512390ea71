#pragma once

#include <cstdint>
#include <set>

namespace ferrowind::planning {

/// The days of the calendar, 1 to 366, that the user of this program has changed, whoever changed them since.
/// Of the newest five hundred of such calls; those of which the history kept no days are left out. Fails as
/// database_call.h says.
[[nodiscard]] std::set<int> LoadOwnDays(std::int32_t currency, std::int32_t year);

}  // namespace ferrowind::planning
