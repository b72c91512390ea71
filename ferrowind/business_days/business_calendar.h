#pragma once

#include <string>
#include <vector>

#include "ferrowind/business_days/business_days.h"
#include "ferrowind/business_days/prepared_year.h"
#include "ferrowind/export.h"

namespace ferrowind::business_days {

/// The business days of one currency.
class FERROWIND_EXPORT BusinessCalendar : public BusinessDays {
 public:
  /// `code` is the currency's, "EUR", and what failures call the calendar. The years come in any order; years
  /// that are missing, also between others, are not prepared. A year that is not as `PreparedYear` says, or
  /// is there twice, is the failure InvalidArgument, which names calendar and year.
  BusinessCalendar(std::string code, std::vector<PreparedYear> years);

  /// The currency's code, as it was given.
  [[nodiscard]] const std::string& Code() const { return Name(); }

 private:
  friend class JointCalendar;
  using BusinessDays::BusinessDays;
};

}  // namespace ferrowind::business_days
