#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "ferrowind/planning/year_overview.h"
#include "ferrowind/platform/toolkit/year_view.h"
#include "ferrowind/views/planning/planning_context.h"

namespace ferrowind {

/// Selected days of one of the calendars of an overview.
struct SelectedDays {
  /// The position of the calendar.
  std::size_t calendar = 0;
  /// Days of the year, ascending, at least one.
  std::vector<std::int16_t> days;

  friend bool operator==(const SelectedDays&, const SelectedDays&) = default;
};

/// The days of cells, calendar by calendar; a cell of the row of all calendars stands for that day of each.
[[nodiscard]] std::vector<SelectedDays> SelectedDaysOf(const planning::YearOverview& overview,
                                                       const std::vector<platform::YearCell>& cells);
/// Those of them that can be made working days by exception: closed ones, and exceptions.
[[nodiscard]] std::vector<SelectedDays> DaysToExcept(const planning::YearOverview& overview,
                                                     const std::vector<SelectedDays>& selected);
/// "3 days selected, 2 of them closed"; of days of several calendars each counts.
[[nodiscard]] std::string SelectionInWords(const planning::YearOverview& overview,
                                           const std::vector<SelectedDays>& selected);

/// What became of days that were to be excepted.
struct ExceptedDays {
  /// The calendars that were changed.
  PlanningWindows::Changed changed;
  /// Those that were not, and why: sentences for the operator; empty when all went well.
  std::string problems;
  /// What was done, a sentence; empty when nothing was.
  std::string done;
};

/// Asks the operator for the reason and makes the days working days by exception, one call a calendar.
/// Nothing is asked without days, and nothing done when the operator cancels.
[[nodiscard]] ExceptedDays ExceptSelectedDays(platform::Toolkit& toolkit,
                                              const planning::YearOverview& overview,
                                              const std::vector<SelectedDays>& days);

/// Shows the problems to the operator, if there are any.
void ShowProblems(const ExceptedDays& excepted, platform::Form& window);

}  // namespace ferrowind
