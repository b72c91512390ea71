#pragma once

#include <vector>

#include "ferrowind/platform/additions/window_parts.h"
#include "ferrowind/views/planning/holidays_addition.h"
#include "ferrowind/views/planning/planning_context.h"

namespace ferrowind {

/// Shows what assigning the chosen rules would do before the Holidays window does it.
class AssignmentCheck : public HolidaysAddition {
 public:
  [[nodiscard]] static platform::WindowParts Parts() { return {}; }
  AssignmentCheck(const PlanningContext& context, platform::HolidaysScene& scene)
      : context_(context), scene_(scene) {}

  [[nodiscard]] bool BeforeAssign(const std::vector<platform::ChosenRule>& rules) override;

 private:
  PlanningContext context_;
  platform::HolidaysScene& scene_;
};

}  // namespace ferrowind
