#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::business_days {

/// What tells the failures of questions about days from those of the platform.
namespace failure_number {
/// The number of a `NotPrepared`.
inline constexpr auto kNotPrepared = static_cast<std::int32_t>(0x80040301U);
/// The number of a `NoBusinessDay`.
inline constexpr auto kNoBusinessDay = static_cast<std::int32_t>(0x80040302U);
}  // namespace failure_number

/// The failure of a question whose answer depends on a day that no calendar tells of: "USD 2029 is not
/// prepared". Its number is `failure_number::kNotPrepared`.
///
/// Such a day is never taken for open: that would settle a trade on a holiday that nobody has entered yet.
class FERROWIND_EXPORT NotPrepared : public platform::Failure {
 public:
  /// `calendar` is the code of the one that lacks the year.
  NotPrepared(std::string calendar, std::chrono::year year);

  /// The code of the calendar that lacks the year; of a joint calendar, of the first member that does.
  [[nodiscard]] const std::string& Calendar() const noexcept { return calendar_; }
  /// The year that somebody has to prepare.
  [[nodiscard]] std::chrono::year Year() const noexcept { return year_; }

 private:
  std::string calendar_;
  std::chrono::year year_;
};

/// The failure of a question for an open day where there is none within a year, or within the month that was
/// asked for: "no business day of EUR+ILS within a year after 2027-01-01". Its number is
/// `failure_number::kNoBusinessDay`.
class FERROWIND_EXPORT NoBusinessDay : public platform::Failure {
 public:
  /// `description` says of which calendar, and where.
  explicit NoBusinessDay(std::string description);
};

}  // namespace ferrowind::business_days
