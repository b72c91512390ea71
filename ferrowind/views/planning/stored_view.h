#pragma once

#include <string>

#include "ferrowind/views/planning/calendars_addition.h"
#include "ferrowind/views/planning/planning_context.h"

namespace ferrowind {

/// Opens a Calendars window as the last one was left: on the calendar that was on show, where it was scrolled
/// to, and with or without the box to group by.
class StoredView : public CalendarsAddition {
 public:
  [[nodiscard]] static platform::WindowParts Parts() { return {}; }

  StoredView(const PlanningContext& context, platform::CalendarsScene& scene);

  void Started() override;
  void Closing() override;

 private:
  platform::CalendarsScene& scene_;
};

}  // namespace ferrowind
