#pragma once

#include <cstdint>
#include <string>

#include "ferrowind/views/planning/calendars_addition.h"
#include "ferrowind/views/planning/find_bar.h"
#include "ferrowind/views/planning/planning_context.h"

namespace ferrowind {

/// Finds days in a Calendars window: by what stands in them and by their kind in a bar above the grid, and by
/// their date in a dialog, in other years too.
class DayFinder : public CalendarsAddition {
 public:
  static constexpr const char* kFindTool = "ID_Find";
  static constexpr const char* kGoToDateTool = "ID_GoToDate";

  [[nodiscard]] static platform::WindowParts Parts();

  DayFinder(const PlanningContext& context, platform::CalendarsScene& scene);

  bool RunTool(const std::string& id) override;
  void Closing() override;

 private:
  [[nodiscard]] FindBar::Subject Subject();
  void GoToDate();
  /// Makes the day current. False when no row of the grid shows it.
  bool Focus(const platform::Date& day);
  [[nodiscard]] std::string WhyNotToShow(const platform::Date& day) const;

  const platform::Platform& platform_;
  platform::CalendarsScene& scene_;
  FindBar bar_;
};

}  // namespace ferrowind
