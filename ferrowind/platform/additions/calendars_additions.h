#pragma once

#include <cstdint>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/additions/calendars_scene.h"

namespace ferrowind::platform {

/// The additions of one Calendars window: what they do when something happens there. A failure of any of
/// these is shown to the operator, and the window goes on as if there were no additions.
class FERROWIND_EXPORT CalendarsAdditions {
 public:
  virtual ~CalendarsAdditions() = default;

  /// Adds columns to the grid of the days behind the given ones; called once, before the stored layout of the
  /// grid is loaded.
  virtual void AddColumns() = 0;
  /// The window is filled and about to be shown; called once.
  virtual void Started() = 0;
  /// A tool was clicked that is none of the window's own. True when it is one of theirs.
  virtual bool RunTool(const std::string& id) = 0;
  /// The days of a calendar were read and are on show now, or none are. The current day may be another.
  virtual void DaysShown() = 0;
  /// Another day is current, or none, while the days on show stay.
  virtual void CurrentDayChanged() = 0;
  /// The popup menu of a row is about to be shown; a group row is no day.
  virtual void DayMenuOpens(bool is_of_day) = 0;
  /// The operator has created that calendar; its days are on show.
  virtual void CalendarCreated(const CalendarOnShow& calendar) = 0;
  /// The window is about to close; called once, or never when its start has failed.
  virtual void Closing() = 0;
};

}  // namespace ferrowind::platform
