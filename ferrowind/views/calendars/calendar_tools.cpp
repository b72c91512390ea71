#include "ferrowind/views/calendars/calendar_tools.h"

#include "ferrowind/views/common/additional_parts.h"
#include "ferrowind/views/common/group_by_box_tool.h"

namespace ferrowind {
namespace {

using platform::kToolSeparator;
using platform::ToolKind;

constexpr const char* kCategory = "General";

struct ToolText {
  const char* id;
  const char* caption;
  const char* description;
  ToolKind kind = ToolKind::kButton;
};

constexpr ToolText kTools[] = {
    {"ID_Refresh", "Refresh", "Refresh all"},
    {"ID_New", "New", "Create new calendar"},
    {"ID_Expand", "Expand", "Expand currency nodes"},
    {"ID_Collapse", "Collapse", "Collapse currency nodes"},
    {GroupByBoxTool::kId, GroupByBoxTool::kText, GroupByBoxTool::kText, ToolKind::kTwoStateButton},
    {"ID_ExpandGrid", "Expand all grid", "Expand all grid"},
    {"ID_CollapseGrid", "Collapse all grid", "Collapse all grid"},
    {"ID_ExpSel", "Expand selection", "Expand selection"},
    {"ID_Copy", "Copy rows from grid to clipboard", "Copy rows from grid to clipboard"},
    {"ID_AssignSingle", "Assign holiday for single day ...", "Assign holiday for single day"},
    {"ID_AssignMany", "Assign group holidays for calendar ...", "Assign group holidays for calendar"},
    {"ID_Except", "Except day from holidays list", "Except day from holidays list"},
    {"ID_Except2", "Except day from holiday list with message ...",
     "Except day from holiday list with message"},
};

constexpr const char* kTreeTools[] = {"ID_New", "ID_Expand", "ID_Collapse"};
constexpr const char* kDayTools[] = {"ID_AssignSingle", "ID_AssignMany", "ID_Except", "ID_Except2"};
constexpr const char* kGridTools[] = {"ID_Copy", GroupByBoxTool::kId, "ID_ExpSel", "ID_ExpandGrid",
                                      "ID_CollapseGrid"};

}  // namespace

void SetupCalendarTools(platform::ToolBar& tool_bar, const platform::WindowParts& additional) {
  for (const auto& tool : kTools) {
    tool_bar.AddTool({tool.id, tool.caption, kCategory, tool.description, tool.kind});
  }
  AddTools(tool_bar, additional);
  tool_bar.SetBar("ToolBar",
                  WithIds({"ID_Refresh", "ID_New", "ID_Expand", "ID_Collapse", kToolSeparator,
                           GroupByBoxTool::kId, "ID_ExpandGrid", "ID_CollapseGrid", "ID_ExpSel", "ID_Copy"},
                          additional.bar));
  tool_bar.AddPopupMenu(
      kDayMenu, "StatesMenu",
      WithIds({"ID_AssignSingle", "ID_AssignMany", kToolSeparator, "ID_Except", "ID_Except2"},
              additional.menu));
}

void RefreshCalendarTools(platform::ToolBar& tool_bar, const platform::Tree& tree,
                          const platform::Grid& grid) {
  const bool has_nodes = tree.Count() > 0;
  for (const char* id : kTreeTools) tool_bar.SetToolEnabled(id, has_nodes);
  const bool shows_calendar = grid.Enabled();
  for (const char* id : kGridTools) tool_bar.SetToolEnabled(id, shows_calendar);
}

void EnableDayTools(platform::ToolBar& tool_bar, bool enabled) {
  for (const char* id : kDayTools) tool_bar.SetToolEnabled(id, enabled);
}

}  // namespace ferrowind
