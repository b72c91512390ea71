#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ferrowind/planning/year_overview.h"
#include "ferrowind/platform/additions/window_parts.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/views/planning/calendars_addition.h"
#include "ferrowind/views/planning/planning_context.h"
#include "ferrowind/views/planning/selected_days.h"

namespace ferrowind {

/// The year at a glance beside the day grid of the Calendars window: the day chosen in one is current in the
/// other, and both have the same menu. The operator shows and hides it; it comes back as it was left. Several
/// days selected in it, or several rows marked in the grid, can be excepted with one reason.
class YearBesideDays : public CalendarsAddition {
 public:
  [[nodiscard]] static platform::WindowParts Parts();
  YearBesideDays(const PlanningContext& context, platform::CalendarsScene& scene);

  void Started() override;
  bool RunTool(const std::string& id) override;
  void DaysShown() override;
  void CurrentDayChanged() override;
  void DayMenuOpens(bool is_of_day) override;
  void Closing() override;

 private:
  void SetVisible(bool is_visible);
  void Fill();
  /// Makes the year's current day the current one of the grid.
  void GoToDayInGrid();
  void ShowDayMenu();
  void ExceptDays();
  /// Those of the year, or those of the rows that are marked in the grid.
  [[nodiscard]] std::vector<platform::YearCell> ChosenCells(const std::string& calendar) const;
  /// Reads the calendar on show unless that was done since its days came on show. What was read before stays
  /// when that fails, unless it is of another calendar.
  void ReadCalendar();

  PlanningContext context_;
  platform::CalendarsScene& scene_;
  platform::YearView& view_;
  bool is_visible_ = false;
  /// While one side follows the other.
  bool is_following_ = false;
  /// Of the calendar on show; nothing until it is needed.
  std::optional<planning::YearOverview> overview_;
  bool is_read_ = false;
  std::vector<platform::Subscription> subscriptions_;
};

}  // namespace ferrowind
