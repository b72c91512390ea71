#include "ferrowind/planning/calendar_change.h"

#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/database_call.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/platform/values/json_text.h"

namespace ferrowind::planning {

std::string DatesJson(int year, std::span<const std::int16_t> days) {
  std::string dates;
  for (const std::int16_t day : days) {
    dates += dates.empty() ? "[" : ",";
    dates += platform::JsonText(platform::Date(year, 1, 1).AddDays(day - 1).ToIso());
  }
  return dates.empty() ? "[]" : dates + "]";
}

//: says 1
bool ChangeSeenDays(const std::string& doing, const Currency& currency, const almanac::CalendarContent& seen,
                    const std::string& days) {
  const StoredCalendar now = LoadCalendar(currency, seen.year);
  if (!now.exists || now.content != seen) return false;
  SourceValues parameters;
  parameters.Add("ID1", currency.id);
  parameters.Add("Year1", static_cast<std::int32_t>(seen.year));
  parameters.Add("Expected", now.fingerprint);
  parameters.Add("Days", days);
  const std::string calendar = CalendarName(currency, seen.year);
  const CallAnswer answer = CallDatabase(InWords(doing, {calendar}), "CldApplyPlan", parameters, 0,
                                         {return_value::kContentIsAnother});
  return answer.return_value == return_value::kDone;
}

std::string ChangedMeanwhile(const std::string& calendar) {
  return InWords("%1 was changed by somebody else meanwhile. It is left as it is; look at its days again.",
                 {calendar});
}

}  // namespace ferrowind::planning
