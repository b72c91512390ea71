#include "ferrowind/business_days/calendar_set.h"

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::business_days {

CalendarSet::CalendarSet(const std::vector<BusinessCalendar>& calendars) {
  for (const BusinessCalendar& calendar : calendars) {
    if (calendars_.emplace(calendar.Code(), calendar).second) continue;
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            "There are two calendars of " + calendar.Code());
  }
}

const BusinessCalendar* CalendarSet::Find(std::string_view code) const {
  const auto found = calendars_.find(code);
  return found == calendars_.end() ? nullptr : &found->second;
}

const BusinessCalendar& CalendarSet::Of(std::string_view code) const {
  if (const BusinessCalendar* calendar = Find(code)) return *calendar;
  throw platform::Failure(platform::failure_number::kElementNotFound,
                          "There is no calendar of " + std::string(code));
}

JointCalendar CalendarSet::Joint(const std::vector<std::string>& codes) const {
  std::vector<BusinessCalendar> members;
  for (const std::string& code : codes) members.push_back(Of(code));
  return JointCalendar(members);
}

std::vector<std::string> CalendarSet::Codes() const {
  std::vector<std::string> codes;
  for (const auto& [code, calendar] : calendars_) codes.push_back(code);
  return codes;
}

}  // namespace ferrowind::business_days
