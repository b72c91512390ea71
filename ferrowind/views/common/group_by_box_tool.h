#pragma once

#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/platform/toolkit/toolkit.h"

namespace ferrowind {

/// The two-state tool that shows and hides a grid's box to group by. It is pressed while the box is on show,
/// also when the operator shows or hides that by other means.
class GroupByBoxTool {
 public:
  static constexpr const char* kId = "ID_ShowHide";
  /// Its caption and its description.
  static constexpr const char* kText = "Show or hide headers group";

  /// The updates of `form` are locked while the box comes or goes. All must outlive this object; the tool
  /// bar has the tool before it is used.
  GroupByBoxTool(platform::Toolkit& toolkit, platform::Form& form, platform::ToolBar& tool_bar,
                 platform::Grid& grid);

  /// What a click on the tool does.
  void ShowOrHideBox();

 private:
  platform::Toolkit& toolkit_;
  platform::Form& form_;
  platform::ToolBar& tool_bar_;
  platform::Grid& grid_;
  platform::Subscription box_changed_;
};

}  // namespace ferrowind
