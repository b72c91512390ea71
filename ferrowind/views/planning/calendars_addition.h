#pragma once

#include <string>

#include "ferrowind/platform/additions/calendars_additions.h"

namespace ferrowind {

/// One of the additions of a Calendars window, which overrides what it is there for.
class CalendarsAddition : public platform::CalendarsAdditions {
 public:
  void AddColumns() override {}
  void Started() override {}
  bool RunTool(const std::string& /*id*/) override { return false; }
  void DaysShown() override {}
  void CurrentDayChanged() override {}
  void DayMenuOpens(bool /*is_of_day*/) override {}
  void CalendarCreated(const platform::CalendarOnShow& /*calendar*/) override {}
  void Closing() override {}
};

}  // namespace ferrowind
