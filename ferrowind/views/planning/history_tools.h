#pragma once

#include <optional>
#include <string>

#include "ferrowind/planning/action_calls.h"
#include "ferrowind/planning/undo_state.h"
#include "ferrowind/platform/additions/calendars_scene.h"
#include "ferrowind/platform/additions/window_parts.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/views/planning/calendars_addition.h"
#include "ferrowind/views/planning/planning_context.h"

namespace ferrowind {

/// The tools that open the history of the calendar on show, or of its current day, and the one that undoes
/// the operator's own last change of that calendar, whose description names it.
class HistoryTools : public CalendarsAddition {
 public:
  [[nodiscard]] static platform::WindowParts Parts();
  HistoryTools(const PlanningContext& context, platform::CalendarsScene& scene)
      : context_(context), scene_(scene) {}

  void Started() override { RefreshUndo(); }
  void DaysShown() override { RefreshUndoLater(); }
  void Closing() override { refresh_.Reset(); }
  void DayMenuOpens(bool is_of_day) override;
  bool RunTool(const std::string& id) override;

 private:
  void RefreshUndoLater();
  void RefreshUndo();
  void OpenHistory();
  void OpenDayHistory();
  void Undo();
  /// Undoes the action of several calls, of which `own` is the last one of this calendar.
  void UndoTogether(planning::ActionCalls& action, const planning::OwnChange& own, const std::string& name);
  /// Shows a text that needs no answer.
  void Tell(const std::string& text) const;

  PlanningContext context_;
  platform::CalendarsScene& scene_;
  platform::Subscription refresh_;
};

}  // namespace ferrowind
