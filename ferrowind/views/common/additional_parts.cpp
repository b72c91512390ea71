#include "ferrowind/views/common/additional_parts.h"

namespace ferrowind {

platform::FormDesign WithControls(platform::FormDesign design, const platform::WindowParts& parts) {
  design.controls.insert(design.controls.end(), parts.controls.begin(), parts.controls.end());
  return design;
}

void AddTools(platform::ToolBar& tool_bar, const platform::WindowParts& parts) {
  for (const auto& tool : parts.tools) tool_bar.AddTool(tool);
}

std::vector<std::string> WithIds(std::vector<std::string> given, const std::vector<std::string>& additional) {
  if (additional.empty()) return given;
  given.emplace_back(platform::kToolSeparator);
  given.insert(given.end(), additional.begin(), additional.end());
  return given;
}

}  // namespace ferrowind
