#pragma once

#include <QLocale>
#include <memory>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/services/locale.h"

namespace ferrowind::qt {

class FullDateReader;

/// Names and dates in the language of the system, or of any other Qt locale.
class FERROWIND_EXPORT QtLocale : public platform::Locale {
 public:
  /// `locale` says the language, the order of a typed date and the first day of the week.
  explicit QtLocale(QLocale locale = QLocale::system());

  [[nodiscard]] std::string MonthName(int month) const override;
  [[nodiscard]] std::string WeekdayName(int weekday) const override;
  [[nodiscard]] std::string DateText(const platform::Date& date) const override;
  [[nodiscard]] std::string LongDateText(const platform::Date& date) const override;
  [[nodiscard]] std::string LongDayText(const platform::Date& date) const override;
  [[nodiscard]] platform::DateReading ReadDate(const std::string& text, int year) const override;

 private:
  QLocale locale_;
  /// Never null; copies share it.
  std::shared_ptr<const FullDateReader> dates_;
};

}  // namespace ferrowind::qt
