#pragma once

#include <string>

#include "ferrowind/platform/additions/calendars_scene.h"
#include "ferrowind/platform/additions/window_parts.h"
#include "ferrowind/views/planning/calendars_addition.h"
#include "ferrowind/views/planning/planning_context.h"

namespace ferrowind {

/// The tool that opens the rule book of the currency that is chosen in the Calendars window.
class RuleBookTool : public CalendarsAddition {
 public:
  [[nodiscard]] static platform::WindowParts Parts();
  RuleBookTool(const PlanningContext& context, platform::CalendarsScene& scene)
      : context_(context), scene_(scene) {}

  bool RunTool(const std::string& id) override;

 private:
  PlanningContext context_;
  platform::CalendarsScene& scene_;
};

}  // namespace ferrowind
