#pragma once

#include "ferrowind/platform/additions/calendars_scene.h"
#include "ferrowind/platform/additions/window_parts.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/views/planning/calendars_addition.h"
#include "ferrowind/views/planning/planning_context.h"

namespace ferrowind {

/// Has the Calendars window read its calendars anew when a window of planning has changed something.
class RefreshedCalendars : public CalendarsAddition {
 public:
  [[nodiscard]] static platform::WindowParts Parts() { return {}; }
  RefreshedCalendars(const PlanningContext& context, platform::CalendarsScene& scene);

  void Closing() override;

 private:
  platform::Subscription changed_;
};

}  // namespace ferrowind
