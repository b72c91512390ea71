#pragma once

#include <string>

#include "ferrowind/control/grid_fields.h"
#include "ferrowind/platform/toolkit/grid.h"

namespace ferrowind {

/// Adds a column to the grid for every entry of the map, in the map's field order; hidden entries become
/// hidden columns, so that every field of the map can be read from a row by its local name. False when an
/// entry failed, without a report; the columns added before it stay.
bool SetupGridColumns(platform::Grid& grid, const GridFields& map);

/// The record-set field of the column with that local name. An unknown local name is the map's failure.
[[nodiscard]] std::string FieldNameOf(const GridFields& map, const std::string& local_name);

}  // namespace ferrowind
