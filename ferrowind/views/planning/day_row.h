#pragma once

#include "ferrowind/platform/toolkit/grid.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind {

/// The key of the column that has the dates of a Calendars window.
inline constexpr const char* kDateColumn = "FullDate";

/// Makes the row of that day the current one. False, and nothing happens, where no row on show is of that
/// day: it is left out, or in a group that is collapsed.
[[nodiscard]] bool GoToRowOf(platform::Grid& days, const platform::Date& day);

}  // namespace ferrowind
