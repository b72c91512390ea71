#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ferrowind/platform/additions/calendars_additions.h"

namespace ferrowind {

/// Several additions of a Calendars window as one: each is told in turn. A failure of one is reported and
/// keeps none of the others from being told.
class CalendarsAdditionList : public platform::CalendarsAdditions {
 public:
  using Additions = std::vector<std::unique_ptr<platform::CalendarsAdditions>>;

  explicit CalendarsAdditionList(Additions additions);

  void AddColumns() override;
  void Started() override;
  bool RunTool(const std::string& id) override;
  void DaysShown() override;
  void CurrentDayChanged() override;
  void DayMenuOpens(bool is_of_day) override;
  void CalendarCreated(const platform::CalendarOnShow& calendar) override;
  void Closing() override;

 private:
  void TellEach(const std::function<void(platform::CalendarsAdditions& addition)>& what);

  Additions additions_;
};

}  // namespace ferrowind
