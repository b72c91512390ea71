#pragma once

#include <string>

#include "ferrowind/platform/additions/calendars_scene.h"
#include "ferrowind/platform/additions/window_parts.h"
#include "ferrowind/views/planning/calendars_addition.h"
#include "ferrowind/views/planning/planning_context.h"

namespace ferrowind {

/// The tools that open the windows which read lists from files and write them.
class ExchangeTools : public CalendarsAddition {
 public:
  [[nodiscard]] static platform::WindowParts Parts();
  ExchangeTools(const PlanningContext& context, platform::CalendarsScene& scene)
      : context_(context), scene_(scene) {}

  bool RunTool(const std::string& id) override;

 private:
  PlanningContext context_;
  platform::CalendarsScene& scene_;
};

}  // namespace ferrowind
