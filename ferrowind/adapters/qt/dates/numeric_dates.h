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

  /// The order that the two numbers have by the separator "." or "/" or "-" between them: the locale's.
  ///
  /// It is unknown where that contradicts another custom of the same people: the hyphen where the locale has
  /// the day first, since ISO 8601 has the month first with it; dot and slash where the locale writes the
  /// year first with hyphens, since its people write short dates either way.
  [[nodiscard]] NumberOrder OrderOf(QChar separator) const;
  /// Two numbers as the locale writes them, for example "31/12".
  [[nodiscard]] QString Written(int day, int month) const;

 private:
  bool is_day_first_ = true;
  /// What stands between day and month: ".", "/" or "-".
  QChar separator_ = QLatin1Char('/');
};

}  // namespace ferrowind::qt
