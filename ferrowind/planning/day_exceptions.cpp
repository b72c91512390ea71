#include "ferrowind/planning/day_exceptions.h"

#include <algorithm>

#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/database_call.h"
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
  const StoredCalendar now = LoadCalendar(currency, seen.year);
  if (!now.exists || now.content != seen) return false;
  std::string dates;
  for (const std::int16_t day : days) {
    if (!dates.empty()) dates += ',';
    dates += platform::JsonText(platform::Date(seen.year, 1, 1).AddDays(day - 1).ToIso());
  }
  SourceValues parameters;
  parameters.Add("ID1", currency.id);
  parameters.Add("Year1", static_cast<std::int32_t>(seen.year));
  parameters.Add("Expected", now.fingerprint);
  parameters.Add(
      "Days", "[{\"TID1\":1,\"Dates\":[" + dates + "],\"DayComment\":" + platform::JsonText(reason) + "}]");
  const CallAnswer answer =
      CallDatabase("Excepting days of " + currency.code + " " + std::to_string(seen.year), "CldApplyPlan",
                   parameters, 0, {return_value::kContentIsAnother});
  return answer.return_value == return_value::kDone;
}

}  // namespace ferrowind::planning
