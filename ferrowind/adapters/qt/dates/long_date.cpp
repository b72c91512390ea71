#include "ferrowind/adapters/qt/dates/long_date.h"

#include <QRegularExpression>

namespace ferrowind::qt {
namespace {

/// The letters of the weekday.
const QRegularExpression& Weekday() {
  static const QRegularExpression weekday(QStringLiteral("d{3,4}"));
  return weekday;
}

QString FormatOfDay(const QLocale& locale) {
  static const QRegularExpression commas(QStringLiteral("[,\u060C]"));
  const QString format = locale.dateFormat(QLocale::LongFormat).remove(commas);
  // A few languages have none in it.
  return format.contains(Weekday()) ? format : QStringLiteral("dddd ") + format;
}

}  // namespace

QString LongDate(const QDate& date, const QLocale& locale) {
  return locale.toString(date, FormatOfDay(locale).remove(Weekday()).trimmed());
}

QString LongDay(const QDate& date, const QLocale& locale) {
  return locale.toString(date, FormatOfDay(locale));
}

}  // namespace ferrowind::qt
