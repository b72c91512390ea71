#pragma once

#include "ferrowind/adapters/qt/controls/date_field.h"
#include "ferrowind/adapters/qt/controls/qt_control.h"
#include "ferrowind/platform/toolkit/date_picker.h"

namespace ferrowind::qt {

class QtDatePicker : public QtControl<platform::DatePicker> {
 public:
  explicit QtDatePicker(DateField& field);

  [[nodiscard]] platform::Date Date() const override { return FromQt(field_.Date()); }
  void SetDate(const platform::Date& date) override { field_.SetDate(ToQt(date)); }
  void SetCustomFormat(const std::string& format) override;
  [[nodiscard]] bool RequireDate() override;

 private:
  DateField& field_;
};

/// The picker's format as Qt writes it: what is not one of "d", "MMMM" and "yyyy" is quoted.
[[nodiscard]] QString QtDateFormat(const QString& format);

}  // namespace ferrowind::qt
