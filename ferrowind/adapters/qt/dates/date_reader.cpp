#include "ferrowind/adapters/qt/dates/date_reader.h"

#include <QStringList>

#include "ferrowind/adapters/qt/dates/date_pattern.h"
#include "ferrowind/adapters/qt/dates/typed_text.h"
#include "ferrowind/adapters/qt/values/translated.h"

namespace ferrowind::qt {
namespace {

constexpr int kMonths = 12;
constexpr int kAnyLeapYear = 2000;

/// What people write behind a day although the locale's dates do not have it.
QStringList OrdinalEndings(QLocale::Language language) {
  switch (language) {
    case QLocale::English:
      return {QStringLiteral("st"), QStringLiteral("nd"), QStringLiteral("rd"), QStringLiteral("th")};
    case QLocale::French:
      return {QStringLiteral("er")};
    case QLocale::Italian:
    case QLocale::Portuguese:
    case QLocale::Spanish:
      // The plain form of the raised letter.
      return {QStringLiteral("o")};
    default:
      return {};
  }
}

/// A pattern that matches any of the words or nothing.
QString AnyOrNone(const QStringList& words) {
  QStringList escaped;
  for (const QString& word : words) {
    if (!word.isEmpty()) escaped += QRegularExpression::escape(word);
  }
  return QStringLiteral("(?:") + escaped.join(QLatin1Char('|')) + QStringLiteral(")?");
}

/// The words between day and month in the locale's long dates, such as the Spanish "de".
QString LinkOf(const QLocale& locale) {
  const DatePattern pattern(locale.dateFormat(QLocale::LongFormat));
  if (!pattern.IsDayFirst()) return {};
  const QString between = pattern.BetweenDayAndMonth();
  return between.startsWith(QLatin1Char(' ')) ? PlainText(between, locale) : QString();
}

QString EndingsOf(const QLocale& locale) {
  QStringList endings = OrdinalEndings(locale.language());
  endings += PlainText(DatePattern(locale.dateFormat(QLocale::LongFormat)).DayEnding(), locale);
  endings += QStringLiteral(".");
  return AnyOrNone(endings);
}

QRegularExpression Whole(const QString& pattern) {
  return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
}

bool IsDay(int day, int month) {
  return month >= 1 && month <= kMonths && QDate::isValid(kAnyLeapYear, month, day);
}

}  // namespace

DateReader::DateReader(const QLocale& locale) : locale_(locale), months_(locale), numbers_(locale) {
  const QString day = QStringLiteral("(\\d{1,2})") + EndingsOf(locale);
  const QString separator = QStringLiteral(" ?[-/,.]? ?");
  day_before_month_ = Whole(day + separator + AnyOrNone({LinkOf(locale)}) + QStringLiteral(" ?"));
  day_after_month_ = Whole(separator + day);
  two_numbers_ = Whole(QStringLiteral("(\\d{1,2}) ?([-/.]) ?(\\d{1,2})(\\.?)"));
}

DateReading DateReader::Read(const QString& text, int year) const {
  const QString plain = PlainText(text, locale_);
  if (const auto reading = ReadNamed(plain, year)) return *reading;
  if (const auto reading = ReadNumbers(plain, year)) return *reading;
  return NoDate();
}

std::optional<DateReading> DateReader::ReadNamed(const QString& plain, int year) const {
  // The dot of an abbreviation, or of the whole.
  const QStringView text = QStringView(plain).chopped(plain.endsWith(QLatin1Char('.')) ? 1 : 0);
  std::optional<DayAndMonth> read;
  for (const MonthNames::Found& found : months_.FindIn(text)) {
    const auto match = (found.is_at_end ? day_before_month_ : day_after_month_).match(found.rest.toString());
    if (!match.hasMatch()) continue;
    const DayAndMonth one{match.captured(1).toInt(), found.month};
    if (read && *read != one) return TwoDays(plain, *read, one);
    read = one;
  }
  if (!read || read->day == 0) return std::nullopt;
  return InYear(*read, year);
}

std::optional<DateReading> DateReader::ReadNumbers(const QString& plain, int year) const {
  const auto match = two_numbers_.match(plain);
  if (!match.hasMatch()) return std::nullopt;
  const QString first = match.captured(1);
  const QString second = match.captured(3);
  const QString separator = match.captured(2);
  if (!match.captured(4).isEmpty() && separator != QLatin1String(".")) return std::nullopt;
  const DayAndMonth day_first{first.toInt(), second.toInt()};
  const DayAndMonth month_first{second.toInt(), first.toInt()};
  const bool can_be_day_first = IsDay(day_first.day, day_first.month);
  const bool can_be_month_first = IsDay(month_first.day, month_first.month);
  if (can_be_day_first && can_be_month_first && day_first != month_first) {
    const NumberOrder order = numbers_.OrderOf(separator[0]);
    if (order == NumberOrder::kUnknown) return TwoDays(plain, day_first, month_first);
    return InYear(order == NumberOrder::kDayFirst ? day_first : month_first, year);
  }
  if (can_be_day_first) return InYear(day_first, year);
  if (can_be_month_first) return InYear(month_first, year);
  // A month with a day that it does not have can still be told.
  if (day_first.day > 0 && day_first.month >= 1 && day_first.month <= kMonths) return InYear(day_first, year);
  if (month_first.day > 0 && month_first.month >= 1 && month_first.month <= kMonths)
    return InYear(month_first, year);
  return std::nullopt;
}

DateReading DateReader::InYear(const DayAndMonth& read, int year) const {
  const QDate date(year, read.month, read.day);
  if (date.isValid()) return {.date = date};
  if (IsDay(read.day, read.month))
    return {.refusal = Translated("There is no %1 in %2.").arg(Named(read)).arg(year)};
  const int days = QDate(year, read.month, 1).daysInMonth();
  return {.refusal = Translated("There is no %1: the month has %2 days.").arg(Named(read)).arg(days)};
}

DateReading DateReader::NoDate() const {
  constexpr DayAndMonth kExample{31, 12};
  return {.refusal = Translated("This is no date. Write a day and a month without a year, such as %1 or %2.")
                         .arg(Named(kExample), numbers_.Written(kExample.day, kExample.month)),
          .is_another_text = true};
}

DateReading DateReader::TwoDays(const QString& typed, const DayAndMonth& one,
                                const DayAndMonth& other) const {
  return {.refusal = Translated("%1 can be %2 or %3. Write the name of the month.")
                         .arg(typed, Named(one), Named(other))};
}

QString DateReader::Named(const DayAndMonth& read) const {
  return QString::number(read.day) + QLatin1Char(' ') + locale_.monthName(read.month, QLocale::LongFormat);
}

}  // namespace ferrowind::qt
