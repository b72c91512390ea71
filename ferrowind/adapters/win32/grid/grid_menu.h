#pragma once

#include <cstdint>

#include "ferrowind/adapters/win32/base/windows_api.h"
#include "ferrowind/adapters/win32/base/wording.h"
#include "ferrowind/adapters/win32/grid/grid_content.h"

namespace ferrowind::win32 {

/// What the operator can do from the menu of a grid's header. The numbers are those of the menu's items.
enum class HeaderCommand {
  kNone,
  kSortAscending,
  kSortDescending,
  kNoSort,
  kGroup,
  kUngroup,
  kExpandAll,
  kCollapseAll,
  kToggleBox,
};

/// Shows the menu of that column's header, and returns what was chosen in it.
[[nodiscard]] HeaderCommand AskInHeaderMenu(HWND grid, const Wording& words, POINT screen,
                                            const GridContent& content, std::int16_t column,
                                            bool is_box_visible);

}  // namespace ferrowind::win32
