#pragma once

#include "ferrowind/control/grid_fields.h"

namespace ferrowind {

/// Adds the default columns of the day grid to the map, all constant and visible.
void AddDefaultHeaders(GridFields& map);

/// Adds the default columns of the holiday grid to the map, all constant; the last three are hidden.
void AddDefaultHolidayHeaders(GridFields& map);

}  // namespace ferrowind
