#pragma once

#include "ferrowind/platform/toolkit/grid.h"

namespace ferrowind {

/// Gives the grid the conditional formats of days and rules by holiday type: `FC_Holiday`, `FC_Celebrate` and
/// `FC_HolidayPoint`, in this order.
///
/// They compare with the texts that the column "HolidayType" shows, not with the codes, which keeps them in
/// step with the names of the holiday types in the database. A type without a text is a failure.
void AddHolidayTypeFormats(platform::Grid& grid);

}  // namespace ferrowind
