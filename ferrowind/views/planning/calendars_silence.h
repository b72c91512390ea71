#pragma once

#include "ferrowind/views/planning/calendars_addition.h"
#include "ferrowind/views/planning/planning_context.h"
#include "ferrowind/views/planning/silence_bar.h"

namespace ferrowind {

/// Tells the operator of a Calendars window while the server does not answer.
class CalendarsSilence : public CalendarsAddition {
 public:
  [[nodiscard]] static platform::WindowParts Parts() { return {.controls = SilenceBar::Controls()}; }

  CalendarsSilence(const PlanningContext& context, platform::CalendarsScene& scene)
      : bar_(context.platform, scene.Window()) {}

  void Started() override { bar_.Start(); }
  void Closing() override { bar_.Stop(); }

 private:
  SilenceBar bar_;
};

}  // namespace ferrowind
