#include "ferrowind/planning/day_exceptions.h"

#include <algorithm>

#include "ferrowind/planning/calendar_change.h"
#include "ferrowind/platform/values/json_text.h"

namespace ferrowind::planning {

std::vector<std::int16_t> DaysToExcept(const almanac::CalendarContent& calendar,
                                       std::span<const std::int16_t> days) {
  std::vector<std::int16_t> chosen;
  for (const almanac::MarkedDay& marked : calendar.days) {
    if (std::find(days.begin(), days.end(), marked.day_of_year) != days.end())
      chosen.push_back(marked.day_of_year);
  }
  return chosen;
}

bool ExceptDays(const Currency& currency, const almanac::CalendarContent& seen,
                std::span<const std::int16_t> days, const std::string& reason) {
  //: said 1
  return ChangeSeenDays("Excepting days of %1", currency, seen,
                        "[{\"TID1\":1,\"Dates\":" + DatesJson(seen.year, days) +
                            ",\"DayComment\":" + platform::JsonText(reason) + "}]");
}

}  // namespace ferrowind::planning
