#include "ferrowind/adapters/qt/services/qt_locale.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "ferrowind/adapters/qt/dates/full_date_reader.h"
#include "ferrowind/adapters/qt/dates/long_date.h"
#include "ferrowind/adapters/qt/dates/short_date.h"
#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {
namespace {

/// Digits as times, years of calendars and counts have them, beside which dates stand. Such digits keep their
/// order by themselves; marks of direction between them would tear a date apart within other text.
std::string AsNumbersAre(const QString& text) {
  constexpr char32_t kMarks[] = {U'\u200E', U'\u200F', U'\u061C'};
  QString written;
  for (const char32_t character : text.toUcs4()) {
    if (std::find(std::begin(kMarks), std::end(kMarks), character) != std::end(kMarks)) continue;
    const int digit = QChar::digitValue(character);
    written += digit >= 0 ? QString::number(digit) : QString::fromUcs4(&character, 1);
  }
  return FromQt(written);
}

}  // namespace

QtLocale::QtLocale(QLocale locale)
    : locale_(std::move(locale)), dates_(std::make_shared<FullDateReader>(locale_)) {}

std::string QtLocale::MonthName(int month) const {
  if (month < 1 || month > 12) throw platform::InvalidArgument();
  return FromQt(locale_.standaloneMonthName(month, QLocale::LongFormat));
}

std::string QtLocale::WeekdayName(int weekday) const {
  if (weekday < 1 || weekday > 7) throw platform::InvalidArgument();
  // Qt counts from Monday and has Sunday as 7.
  return FromQt(locale_.standaloneDayName(weekday == 1 ? 7 : weekday - 1, QLocale::LongFormat));
}

std::string QtLocale::DateText(const platform::Date& date) const {
  const QDate day = ToQt(date);
  return AsNumbersAre(ShortDate(day, locale_) + QLatin1Char(' ') +
                      locale_.dayName(day.dayOfWeek(), QLocale::ShortFormat));
}

std::string QtLocale::LongDateText(const platform::Date& date) const {
  return AsNumbersAre(LongDate(ToQt(date), locale_));
}

std::string QtLocale::LongDayText(const platform::Date& date) const {
  return AsNumbersAre(LongDay(ToQt(date), locale_));
}

platform::DateReading QtLocale::ReadDate(const std::string& text, int year) const {
  const DateReading read = dates_->Read(ToQt(text), year);
  if (!read.date.isValid()) return {.refusal = FromQt(read.refusal)};
  return {.date = FromQt(read.date)};
}

}  // namespace ferrowind::qt
