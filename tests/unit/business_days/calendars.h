#pragma once

#include <chrono>
#include <set>
#include <string>
#include <vector>

#include "ferrowind/business_days/business_calendar.h"

namespace ferrowind::business_days {

/// A year with Saturdays, Sundays and these days closed, each as `month / day`.
inline PreparedYear YearWith(int number, const std::vector<std::chrono::month_day>& holidays = {}) {
  const std::chrono::year year(number);
  PreparedYear prepared{year, {}};
  for (std::chrono::sys_days day = year / 1 / 1; std::chrono::year_month_day(day).year() == year;
       day += std::chrono::days(1)) {
    const std::chrono::year_month_day date(day);
    const std::chrono::weekday weekday(day);
    bool is_closed = weekday == std::chrono::Saturday || weekday == std::chrono::Sunday;
    for (const auto& holiday : holidays) is_closed |= holiday == date.month() / date.day();
    prepared.days += is_closed ? '1' : '0';
  }
  return prepared;
}

}  // namespace ferrowind::business_days
