#include "ferrowind/views/common/group_by_box_tool.h"

#include "ferrowind/views/common/update_lock.h"

namespace ferrowind {

GroupByBoxTool::GroupByBoxTool(platform::Toolkit& toolkit, platform::Form& form, platform::ToolBar& tool_bar,
                               platform::Grid& grid)
    : toolkit_(toolkit),
      form_(form),
      tool_bar_(tool_bar),
      grid_(grid),
      box_changed_(
          grid.OnGroupByBoxChange([&tool_bar](bool visible) { tool_bar.SetToolPressed(kId, visible); })) {}

void GroupByBoxTool::ShowOrHideBox() {
  const UpdateLock lock(toolkit_, form_);
  grid_.SetGroupByBoxVisible(tool_bar_.ToolPressed(kId));
}

}  // namespace ferrowind
