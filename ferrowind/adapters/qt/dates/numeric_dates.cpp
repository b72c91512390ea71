#include "ferrowind/adapters/qt/dates/numeric_dates.h"

#include <algorithm>

#include "ferrowind/adapters/qt/dates/date_pattern.h"

namespace ferrowind::qt {

NumericDates::NumericDates(const QLocale& locale) {
  const DatePattern pattern(locale.dateFormat(QLocale::ShortFormat));
  is_day_first_ = pattern.IsDayFirst();
  for (const QChar character : pattern.BetweenDayAndMonth()) {
    if (QStringLiteral("./-").contains(character)) {
      separator_ = character;
      break;
    }
  }
}

NumberOrder NumericDates::OrderOf(QChar separator, bool are_two_digits) const {
  const bool has_hyphens = separator_ == QLatin1Char('-');
  if (separator != QLatin1Char('-')) {
    if (is_day_first_) return NumberOrder::kDayFirst;
    return has_hyphens ? NumberOrder::kUnknown : NumberOrder::kMonthFirst;
  }
  if (!is_day_first_) return NumberOrder::kMonthFirst;
  return are_two_digits && !has_hyphens ? NumberOrder::kMonthFirst : NumberOrder::kUnknown;
}

QString NumericDates::Written(int day, int month) const {
  const QString first = QString::number(is_day_first_ ? day : month);
  return first + separator_ + QString::number(is_day_first_ ? month : day);
}

}  // namespace ferrowind::qt
