#pragma once

#include <QLocale>

#include "ferrowind/adapters/qt/dates/full_date_reader.h"
#include "ferrowind/platform/services/locale.h"

namespace ferrowind::qt {

/// Names and dates in the language of the system, or of any other Qt locale.
class QtLocale : public platform::Locale {
 public:
  explicit QtLocale(QLocale locale = QLocale::system()) : locale_(std::move(locale)), dates_(locale_) {}

  [[nodiscard]] std::string MonthName(int month) const override;
  [[nodiscard]] std::string WeekdayName(int weekday) const override;
  [[nodiscard]] std::string DateText(const platform::Date& date) const override;
  [[nodiscard]] std::string LongDateText(const platform::Date& date) const override;
  [[nodiscard]] std::string LongDayText(const platform::Date& date) const override;
  [[nodiscard]] platform::DateReading ReadDate(const std::string& text, int year) const override;

 private:
  QLocale locale_;
  FullDateReader dates_;
};

}  // namespace ferrowind::qt
