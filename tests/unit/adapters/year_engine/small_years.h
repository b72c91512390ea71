#pragma once

#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/year_engine/year_days.h"

namespace ferrowind::year_engine {

/// A content with a calendar for each key, all days of them ordinary.
inline platform::YearContent ContentOf(int year, const std::vector<std::string>& keys) {
  platform::YearContent content;
  content.year = year;
  for (const auto& key : keys) {
    platform::YearCalendar& calendar = content.calendars.emplace_back();
    calendar.key = key;
    calendar.caption = key;
    calendar.ordinary = "working day";
  }
  return content;
}

inline YearDays DaysOf(int year, const std::vector<std::string>& keys) {
  return YearDays(ContentOf(year, keys));
}

}  // namespace ferrowind::year_engine
