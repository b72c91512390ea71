#pragma once

#include <vector>

#include "ferrowind/business_days/business_calendar.h"
#include "ferrowind/business_days/business_days.h"
#include "ferrowind/export.h"

namespace ferrowind::business_days {

/// The days on which several currencies can be settled together: closed when one of them is closed.
///
/// Only days that all members have prepared are prepared, also where one of them is known to be closed. It is
/// merged when it is made; afterwards a question costs what it costs of a single calendar.
class FERROWIND_EXPORT JointCalendar : public BusinessDays {
 public:
  /// In any order; a code that comes again adds nothing. Without members it is the failure InvalidArgument.
  explicit JointCalendar(const std::vector<BusinessCalendar>& members);

  /// In the order in which they were given, each code once.
  [[nodiscard]] std::vector<BusinessCalendar> Members() const;
};

}  // namespace ferrowind::business_days
