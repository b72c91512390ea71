#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/planning/action_calls.h"
#include "ferrowind/planning/year_overview.h"
#include "ferrowind/platform/toolkit/year_view.h"
#include "ferrowind/views/planning/planning_context.h"

namespace ferrowind {

using planning::SelectedDays;

/// The days of cells, calendar by calendar; a cell of the row of all calendars stands for that day of each.
[[nodiscard]] std::vector<SelectedDays> SelectedDaysOf(const planning::YearOverview& overview,
                                                       const std::vector<platform::YearCell>& cells);
/// Those of them that can be made working days by exception: closed ones, and exceptions.
[[nodiscard]] std::vector<SelectedDays> DaysToExcept(const planning::YearOverview& overview,
                                                     const std::vector<SelectedDays>& selected);
/// Whether any of them is open, an exception too, so that it can be closed.
[[nodiscard]] bool HasDayToClose(const planning::YearOverview& overview,
                                 const std::vector<SelectedDays>& selected);
/// "3 days selected, 2 of them closed"; of days of several calendars each counts.
[[nodiscard]] std::string SelectionInWords(const planning::YearOverview& overview,
                                           const std::vector<SelectedDays>& selected);

/// What became of days that the operator has changed.
struct DaysOutcome {
  /// What was changed, as `PlanningWindows::TellChanged` takes it; nothing when nothing was.
  std::optional<PlanningWindows::Changed> changed;
  /// What was not, and why: sentences for the operator; empty when all went well.
  std::string problems;
  /// What was done, a sentence; empty when nothing was.
  std::string done;
  /// What undoes all of it in one step, where that was asked for.
  planning::ActionCalls calls = {};
};

/// Makes the days working days by exception with that reason, which may be empty, one call a calendar.
[[nodiscard]] DaysOutcome ExceptDaysWith(const std::string& reason, const planning::YearOverview& overview,
                                         const std::vector<SelectedDays>& days);
/// Asks the operator for the reason of exceptions, which may be empty; nothing when the operator cancels.
[[nodiscard]] std::optional<std::string> AskForReason(platform::Toolkit& toolkit);

/// Asks the operator what the holiday is called, shows what will happen, and closes those of the days that
/// are open, one call a calendar. Nothing is done when the operator cancels.
[[nodiscard]] DaysOutcome CloseSelectedDays(const PlanningContext& context,
                                            const planning::YearOverview& overview,
                                            const std::vector<SelectedDays>& days);

/// What `act` does with those days, and what undoes it. `act` asks the operator nothing: what the user
/// changes in other programs meanwhile would be undone, too.
[[nodiscard]] DaysOutcome WithCalls(const planning::YearOverview& overview,
                                    const std::vector<SelectedDays>& days,
                                    const std::function<DaysOutcome()>& act);
/// Undoes what an action has changed; what failed stays in `calls` to be undone another time.
[[nodiscard]] DaysOutcome UndoAction(planning::ActionCalls& calls);

/// Shows the problems to the operator, if there are any.
void ShowProblems(const DaysOutcome& outcome, platform::Form& window);

}  // namespace ferrowind
