#include "ferrowind/business_days/day_failures.h"

#include <utility>

namespace ferrowind::business_days {

NotPrepared::NotPrepared(std::string calendar, std::chrono::year year)
    : Failure(failure_number::kNotPrepared,
              calendar + ' ' + std::to_string(static_cast<int>(year)) + " is not prepared"),
      calendar_(std::move(calendar)),
      year_(year) {}

NoBusinessDay::NoBusinessDay(std::string description)
    : Failure(failure_number::kNoBusinessDay, std::move(description)) {}

}  // namespace ferrowind::business_days
