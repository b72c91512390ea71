#include "ferrowind/adapters/win32/grid/grid_menu.h"

#include "ferrowind/adapters/win32/base/handles.h"

namespace ferrowind::win32 {
namespace {

class Menu {
 public:
  explicit Menu(const Wording& words) : words_(words), menu_(CreatePopupMenu()) {}

  //: says 2
  void Add(HeaderCommand command, const char* english, bool is_enabled = true, bool is_checked = false) {
    const UINT state = (is_enabled ? MF_ENABLED : MF_GRAYED) | (is_checked ? MF_CHECKED : MF_UNCHECKED);
    AppendMenuW(menu_.get(), MF_STRING | state, static_cast<UINT_PTR>(command),
                words_.Translated(english).c_str());
  }
  void AddSeparator() { AppendMenuW(menu_.get(), MF_SEPARATOR, 0, nullptr); }
  [[nodiscard]] HMENU Get() const { return menu_.get(); }

 private:
  const Wording& words_;
  UniqueMenu menu_;
};

}  // namespace

HeaderCommand AskInHeaderMenu(HWND grid, const Wording& words, POINT screen, const GridContent& content,
                              std::int16_t column, bool is_box_visible) {
  Menu menu(words);
  const std::int32_t order = content.SortKeys().OrderOf(column);
  const bool is_grouped_by = content.GroupKeys().PositionOf(column) > 0;
  const bool has_groups = content.GroupKeys().Count() > 0;
  menu.Add(HeaderCommand::kSortAscending, "Sort &Ascending", true, order == platform::kSortAscending);
  menu.Add(HeaderCommand::kSortDescending, "Sort &Descending", true, order == platform::kSortDescending);
  menu.Add(HeaderCommand::kNoSort, "&Clear Sorting", order != platform::kSortNone);
  menu.AddSeparator();
  menu.Add(HeaderCommand::kGroup, "&Group by This Column",
           !is_grouped_by && content.Columns()[column].IsGroupable());
  menu.Add(HeaderCommand::kUngroup, "&Ungroup", is_grouped_by);
  menu.AddSeparator();
  menu.Add(HeaderCommand::kExpandAll, "&Expand All", has_groups);
  menu.Add(HeaderCommand::kCollapseAll, "C&ollapse All", has_groups);
  menu.AddSeparator();
  menu.Add(HeaderCommand::kToggleBox, "Show Group &Panel", true, is_box_visible);
  return static_cast<HeaderCommand>(
      TrackPopupMenuEx(menu.Get(), TPM_RETURNCMD, screen.x, screen.y, grid, nullptr));
}

}  // namespace ferrowind::win32
