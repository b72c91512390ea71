#pragma once

#include <optional>
#include <vector>

#include "ferrowind/planning/action_calls.h"
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
  /// Keeps what was assigned, so that all of several rules are undone in one step.
  void Closing() override;

 private:
  PlanningContext context_;
  platform::HolidaysScene& scene_;
  /// Nothing before several rules are assigned.
  std::optional<planning::ActionCalls::Mark> before_;
};

}  // namespace ferrowind
