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

NumberOrder NumericDates::OrderOf(QChar separator) const {
  constexpr QLatin1Char kHyphen('-');
  if (separator == kHyphen) return is_day_first_ ? NumberOrder::kUnknown : NumberOrder::kMonthFirst;
  if (is_day_first_) return NumberOrder::kDayFirst;
  return separator_ == kHyphen ? NumberOrder::kUnknown : NumberOrder::kMonthFirst;
}

QString NumericDates::Written(int day, int month) const {
  const QString first = QString::number(is_day_first_ ? day : month);
  return first + separator_ + QString::number(is_day_first_ ? month : day);
}

}  // namespace ferrowind::qt
