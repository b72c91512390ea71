#pragma once

#include "ferrowind/platform/additions/window_parts.h"
#include "ferrowind/platform/toolkit/grid.h"
#include "ferrowind/platform/toolkit/tool_bar.h"
#include "ferrowind/platform/toolkit/tree.h"

namespace ferrowind {

/// The popup menu of what can be done with a day.
inline constexpr const char* kDayMenu = "ID_StatesMenu";

/// Gives the Calendars window's toolbar its tools, the bar and the popup menu, with the additional ones
/// behind them.
void SetupCalendarTools(platform::ToolBar& tool_bar, const platform::WindowParts& additional = {});

/// Enables the tree's tools while the tree has nodes and the grid's tools while the grid is enabled.
void RefreshCalendarTools(platform::ToolBar& tool_bar, const platform::Tree& tree,
                          const platform::Grid& grid);

/// Enables or disables the tools of the popup menu.
void EnableDayTools(platform::ToolBar& tool_bar, bool enabled);

}  // namespace ferrowind
