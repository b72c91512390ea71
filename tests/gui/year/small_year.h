#pragma once

#include <string>
#include <vector>

#include "ferrowind/adapters/year_engine/year_days.h"

namespace ferrowind::gui {

/// 2028 of calendars that close on weekends, on Good Friday and on Christmas Day, and work by exception on
/// Saturday, 8 January.
inline platform::YearContent SmallYear(const std::vector<std::string>& calendars) {
  using platform::DayShape;
  using platform::DayTint;
  const platform::DayLook weekend{DayTint::kGrey, DayShape::kBar, ""};
  const platform::DayLook celebration{DayTint::kRed, DayShape::kSquare, "C"};
  const platform::DayLook point{DayTint::kViolet, DayShape::kDiamond, "P"};
  const platform::DayLook exception{DayTint::kGreen, DayShape::kTriangle, "E"};
  platform::YearContent content;
  content.year = 2028;
  for (const auto& key : calendars) {
    platform::YearCalendar& calendar = content.calendars.emplace_back();
    calendar.key = key;
    calendar.caption = key;
    calendar.description = "Calendar of " + key;
    calendar.ordinary = "working day";
    for (std::int16_t day = 1; day <= 366; ++day) {
      const int weekday = platform::Date(2028, 1, 1).AddDays(day - 1).Weekday();
      if (day == 8) {
        calendar.days.push_back({day, exception, "Working day by exception: fair"});
      } else if (day == 105) {
        calendar.days.push_back({day, point, "Good Friday, closed"});
      } else if (day == 360) {
        calendar.days.push_back({day, celebration, "Christmas Day, closed"});
      } else if (weekday == 1 || weekday == 7) {
        calendar.days.push_back({day, weekend, "weekend, closed"});
      }
    }
    calendar.months.fill({"21", "21 working days"});
  }
  content.legend = {
      {weekend, "Weekend"}, {celebration, "Celebration"}, {point, "Holiday point"}, {exception, "Exception"}};
  content.notes = {{8, "Working day by exception: fair"}, {105, "Good Friday"}, {360, "Christmas Day"}};
  content.summary = "253 working days";
  return content;
}

}  // namespace ferrowind::gui
