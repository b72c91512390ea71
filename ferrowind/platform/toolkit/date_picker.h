#pragma once

#include <string>

#include "ferrowind/platform/toolkit/control.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::platform {

/// Lets the operator pick a day; shows today at first.
class DatePicker : public Control {
 public:
  [[nodiscard]] virtual platform::Date Date() const = 0;
  virtual void SetDate(const platform::Date& date) = 0;
  /// How the day is shown: "d" day, "MMMM" full month name in the operator's language, "yyyy" year; all other
  /// characters stand for themselves.
  virtual void SetCustomFormat(const std::string& format) = 0;
};

}  // namespace ferrowind::platform
