#pragma once

#include <cstdint>
#include <string>

#include "ferrowind/platform/services/shared_services.h"
#include "ferrowind/platform/toolkit/grid.h"
#include "ferrowind/platform/toolkit/grid_column.h"

namespace ferrowind {

///@{
/// As the operations of `platform::SharedServices`, for grids that are a `grid_content::ArrangeableGrid` as
/// well; of another toolkit's grid there is nothing to store, restore or copy. Layouts are settings of
/// `services`, which trace one that is damaged or kept.
void SortByColumn(std::int32_t sort_order, platform::Grid& grid, platform::GridColumn& column);
void StoreLayout(platform::Grid& grid, platform::SharedServices& services, const std::string& section);
void RestoreLayout(platform::Grid& grid, platform::SharedServices& services, const std::string& section);
void CopyRows(const platform::Grid& grid, bool with_headers);
///@}

}  // namespace ferrowind
