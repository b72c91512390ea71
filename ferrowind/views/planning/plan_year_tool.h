#pragma once

#include <string>

#include "ferrowind/platform/additions/calendars_scene.h"
#include "ferrowind/platform/additions/window_parts.h"
#include "ferrowind/views/planning/calendars_addition.h"
#include "ferrowind/views/planning/planning_context.h"

namespace ferrowind {

/// The tool that opens the plan of the calendar on show, and the offer to do so for a calendar that the
/// operator has just created: it is empty, and nothing is closed in it yet.
class PlanYearTool : public CalendarsAddition {
 public:
  [[nodiscard]] static platform::WindowParts Parts();
  PlanYearTool(const PlanningContext& context, platform::CalendarsScene& scene)
      : context_(context), scene_(scene) {}

  void Started() override { RefreshTool(); }
  void DaysShown() override { RefreshTool(); }
  bool RunTool(const std::string& id) override;
  void CalendarCreated(const platform::CalendarOnShow& calendar) override;
  void Closing() override { has_closed_ = true; }

 private:
  void RefreshTool();
  void Open(const platform::CalendarOnShow& calendar);

  PlanningContext context_;
  platform::CalendarsScene& scene_;
  bool has_closed_ = false;
};

}  // namespace ferrowind
