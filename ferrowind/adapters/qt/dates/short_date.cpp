#include "ferrowind/adapters/qt/dates/short_date.h"

namespace ferrowind::qt {
namespace {

QString WithFullYear(QString format) {
  const QString full_year = QStringLiteral("yyyy");
  const QString short_year = QStringLiteral("yy");
  // No locale has the letters within quotes; its test asks them all.
  if (!format.contains(full_year)) format.replace(short_year, full_year);
  return format;
}

}  // namespace

QString ShortDate(const QDate& date, const QLocale& locale) {
  return locale.toString(date, WithFullYear(locale.dateFormat(QLocale::ShortFormat)));
}

}  // namespace ferrowind::qt
