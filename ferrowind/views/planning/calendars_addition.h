#pragma once

#include <cstdint>
#include <string>

#include "ferrowind/platform/additions/calendars_additions.h"

namespace ferrowind {

/// One of the additions of a Calendars window, which overrides what it is there for.
class CalendarsAddition : public platform::CalendarsAdditions {
 public:
  /// How long the operator has to rest on days before an addition reads what it tells of them: nobody waits
  /// for that to see the days.
  static constexpr std::int32_t kRestMilliseconds = 120;

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
