#include "ferrowind/adapters/win32/grid/grid_menu.h"

#include "ferrowind/adapters/win32/base/handles.h"

namespace ferrowind::win32 {
namespace {

void Add(const UniqueMenu& menu, HeaderCommand command, const wchar_t* text, bool is_enabled,
         bool is_checked = false) {
  const UINT state = (is_enabled ? MF_ENABLED : MF_GRAYED) | (is_checked ? MF_CHECKED : MF_UNCHECKED);
  AppendMenuW(menu.get(), MF_STRING | state, static_cast<UINT_PTR>(command), text);
}

void AddSeparator(const UniqueMenu& menu) { AppendMenuW(menu.get(), MF_SEPARATOR, 0, nullptr); }

}  // namespace

HeaderCommand AskInHeaderMenu(HWND grid, POINT screen, const GridContent& content, std::int16_t column,
                              bool is_box_visible) {
  const UniqueMenu menu(CreatePopupMenu());
  const std::int32_t order = content.SortKeys().OrderOf(column);
  const bool is_grouped_by = content.GroupKeys().PositionOf(column) > 0;
  const bool has_groups = content.GroupKeys().Count() > 0;
  Add(menu, HeaderCommand::kSortAscending, L"Sort Ascending", true, order == platform::kSortAscending);
  Add(menu, HeaderCommand::kSortDescending, L"Sort Descending", true, order == platform::kSortDescending);
  Add(menu, HeaderCommand::kNoSort, L"No Sorting", order != platform::kSortNone);
  AddSeparator(menu);
  if (is_grouped_by) {
    Add(menu, HeaderCommand::kUngroup, L"Do Not Group By This Column", true);
  } else {
    Add(menu, HeaderCommand::kGroup, L"Group By This Column", content.Columns()[column].IsGroupable());
  }
  Add(menu, HeaderCommand::kToggleBox, L"Group By Box", true, is_box_visible);
  AddSeparator(menu);
  Add(menu, HeaderCommand::kExpandAll, L"Expand All Groups", has_groups);
  Add(menu, HeaderCommand::kCollapseAll, L"Collapse All Groups", has_groups);
  return static_cast<HeaderCommand>(
      TrackPopupMenuEx(menu.get(), TPM_RETURNCMD, screen.x, screen.y, grid, nullptr));
}

}  // namespace ferrowind::win32
