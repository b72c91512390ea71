#pragma once

#include <string>
#include <vector>

#include "ferrowind/export.h"
#include "ferrowind/platform/toolkit/form_design.h"
#include "ferrowind/platform/toolkit/tool_bar.h"

namespace ferrowind::platform {

/// What additions put on a window, all of it behind what the window has of its own: none of the names and ids
/// is one of the window's.
struct FERROWIND_EXPORT WindowParts {
  /// In tab order; the layout of the form must have them.
  std::vector<ControlDesign> controls = {};
  /// Those that `bar` and `menu` name.
  std::vector<ToolDesign> tools = {};
  ///@{
  /// The ids on the window's bar, and those in its popup menu where it has one; `kToolSeparator` between
  /// them.
  std::vector<std::string> bar = {};
  std::vector<std::string> menu = {};
  ///@}
};

}  // namespace ferrowind::platform
