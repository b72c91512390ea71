#pragma once

#include <QString>

namespace ferrowind::qt {

/// A format of a locale's dates, as Qt writes it ("dddd, d 'de' MMMM 'de' yyyy"), taken apart around its day
/// of the month and its month.
class DatePattern {
 public:
  explicit DatePattern(const QString& format);

  /// True also for a format without a day or without a month.
  [[nodiscard]] bool IsDayFirst() const { return is_day_first_; }
  /// The text between the two, whichever is first, without the quotes of the format.
  [[nodiscard]] const QString& BetweenDayAndMonth() const { return between_; }
  /// What follows the day without a blank, up to the next blank or field.
  [[nodiscard]] const QString& DayEnding() const { return day_ending_; }

 private:
  bool is_day_first_ = true;
  QString between_;
  QString day_ending_;
};

}  // namespace ferrowind::qt
