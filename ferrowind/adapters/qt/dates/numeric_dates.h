#pragma once

#include <QLocale>
#include <QString>

namespace ferrowind::qt {

/// In which order day and month stand in a date of two numbers.
enum class NumberOrder { kDayFirst, kMonthFirst, kUnknown };

/// How a locale writes a date of numbers.
class NumericDates {
 public:
  explicit NumericDates(const QLocale& locale);

  /// The order that the two numbers have by the separator "." or "/" or "-" between them:
  /// - A hyphen between two-digit numbers is the month-day of ISO 8601. Between other numbers it is that too,
  ///   unless the locale has the day first.
  /// - Dot and slash have the locale's order.
  /// It is unknown where two customs of one country contradict each other: the hyphen where the locale itself
  /// writes the day first with it, dot and slash where the locale writes the year first with hyphens and its
  /// people write short dates either way.
  [[nodiscard]] NumberOrder OrderOf(QChar separator, bool are_two_digits) const;
  /// Two numbers as the locale writes them, for example "31/12".
  [[nodiscard]] QString Written(int day, int month) const;

 private:
  bool is_day_first_ = true;
  /// What stands between day and month: ".", "/" or "-".
  QChar separator_ = QLatin1Char('/');
};

}  // namespace ferrowind::qt
