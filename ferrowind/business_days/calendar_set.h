#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/business_days/business_calendar.h"
#include "ferrowind/business_days/joint_calendar.h"
#include "ferrowind/export.h"

namespace ferrowind::business_days {

/// The calendars of many currencies, by their codes. Copies share the calendars.
class FERROWIND_EXPORT CalendarSet {
 public:
  /// A code that comes twice is the failure InvalidArgument.
  explicit CalendarSet(const std::vector<BusinessCalendar>& calendars = {});

  /// The failure ElementNotFound, "There is no calendar of XYZ", without one, and another text of an empty
  /// code. Valid as long as the set.
  [[nodiscard]] const BusinessCalendar& Of(std::string_view code) const;
  /// Null without one.
  [[nodiscard]] const BusinessCalendar* Find(std::string_view code) const;
  /// The failures are those of `Of` and of `JointCalendar`.
  [[nodiscard]] JointCalendar Joint(const std::vector<std::string>& codes) const;
  /// Ascending.
  [[nodiscard]] std::vector<std::string> Codes() const;

 private:
  std::map<std::string, BusinessCalendar, std::less<>> calendars_;
};

}  // namespace ferrowind::business_days
