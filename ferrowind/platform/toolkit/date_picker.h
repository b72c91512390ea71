#pragma once

#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/toolkit/control.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::platform {

/// Lets the operator pick a day, or type one as day and month; shows today at first. Whatever the operator
/// does, the day stays in the year of the day that the program has set.
///
/// The operator may leave a text in it that is no day. The picker then keeps that text and tells the operator
/// why it is none; it is never made into a day.
class FERROWIND_EXPORT DatePicker : public Control {
 public:
  /// The day that the picker holds; while it holds a text that is none, the last day that it showed.
  [[nodiscard]] virtual platform::Date Date() const = 0;
  /// Shows the day, in place of a text that is none; the operator stays in its year from then on.
  virtual void SetDate(const platform::Date& date) = 0;
  /// How the day is shown: "d" day, "MMMM" full month name in the operator's language, "yyyy" year; all other
  /// characters stand for themselves.
  virtual void SetCustomFormat(const std::string& format) = 0;
  /// To be called before the day is put to use: true when the picker holds one. Otherwise takes the focus, as
  /// `SetFocus` does, shows the operator why the text is no day, and is false.
  [[nodiscard]] virtual bool RequireDate() = 0;
};

}  // namespace ferrowind::platform
