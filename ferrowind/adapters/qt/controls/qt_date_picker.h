#pragma once

#include <QDateEdit>

#include "ferrowind/adapters/qt/controls/qt_control.h"
#include "ferrowind/platform/toolkit/date_picker.h"

namespace ferrowind::qt {

class QtDatePicker : public QtControl<platform::DatePicker> {
 public:
  explicit QtDatePicker(QDateEdit& edit);

  [[nodiscard]] platform::Date Date() const override;
  void SetDate(const platform::Date& date) override;
  void SetCustomFormat(const std::string& format) override;

 private:
  QDateEdit& edit_;
  /// Kept apart, since the edit shows no year before 100.
  platform::Date date_;
};

/// The picker's format as Qt writes it: what is not one of "d", "MMMM" and "yyyy" is quoted.
[[nodiscard]] QString QtDateFormat(const QString& format);

}  // namespace ferrowind::qt
