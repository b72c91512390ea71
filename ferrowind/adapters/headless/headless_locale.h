#pragma once

#include <string>

#include "ferrowind/platform/services/locale.h"

namespace ferrowind::headless {

/// English names, dates as ISO 8601 has them.
class HeadlessLocale : public platform::Locale {
 public:
  [[nodiscard]] std::string MonthName(int month) const override;
  [[nodiscard]] std::string WeekdayName(int weekday) const override;
  /// "2028-04-14 Fri".
  [[nodiscard]] std::string DateText(const platform::Date& date) const override;
  /// "14 April 2028".
  [[nodiscard]] std::string LongDateText(const platform::Date& date) const override;
  /// "Friday 14 April 2028".
  [[nodiscard]] std::string LongDayText(const platform::Date& date) const override;
  /// Reads what `DateText` writes, without the weekday or the year, too: "2028-04-14", "04-14".
  [[nodiscard]] platform::DateReading ReadDate(const std::string& text, int year) const override;
};

}  // namespace ferrowind::headless
