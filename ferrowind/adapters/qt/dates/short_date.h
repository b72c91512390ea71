#pragma once

#include <QDate>
#include <QLocale>
#include <QString>

namespace ferrowind::qt {

/// The date in the locale's short format, with all four digits of the year, of which many locales show two.
[[nodiscard]] QString ShortDate(const QDate& date, const QLocale& locale);

}  // namespace ferrowind::qt
