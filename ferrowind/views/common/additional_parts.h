#pragma once

#include <string>
#include <vector>

#include "ferrowind/platform/additions/window_parts.h"
#include "ferrowind/platform/toolkit/form_design.h"
#include "ferrowind/platform/toolkit/tool_bar.h"

namespace ferrowind {

/// The design with the additional controls behind its own.
[[nodiscard]] platform::FormDesign WithControls(platform::FormDesign design,
                                                const platform::WindowParts& parts);

void AddTools(platform::ToolBar& tool_bar, const platform::WindowParts& parts);

/// The ids with the additional ones behind them, and a separator between both; `given` where there are none.
[[nodiscard]] std::vector<std::string> WithIds(std::vector<std::string> given,
                                               const std::vector<std::string>& additional);

}  // namespace ferrowind
