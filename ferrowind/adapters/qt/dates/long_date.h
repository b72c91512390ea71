#pragma once

#include <QDate>
#include <QLocale>
#include <QString>

namespace ferrowind::qt {

/// The date in the locale's words, without commas, which would set its parts apart as they do the texts
/// beside it: "14 April 2028".
[[nodiscard]] QString LongDate(const QDate& date, const QLocale& locale);

/// The same with the weekday: "Friday 14 April 2028".
[[nodiscard]] QString LongDay(const QDate& date, const QLocale& locale);

}  // namespace ferrowind::qt
