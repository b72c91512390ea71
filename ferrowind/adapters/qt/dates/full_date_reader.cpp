#include "ferrowind/adapters/qt/dates/full_date_reader.h"

#include <algorithm>

#include "ferrowind/adapters/qt/dates/short_date.h"
#include "ferrowind/adapters/qt/dates/typed_text.h"
#include "ferrowind/adapters/qt/values/translated.h"

namespace ferrowind::qt {
namespace {

constexpr int kDaysOfWeek = 7;
constexpr int kThisCentury = 2000;
constexpr int kYearsOfTwoDigits = 100;

QRegularExpression Whole(const QString& pattern) {
  return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
}

}  // namespace

FullDateReader::FullDateReader(const QLocale& locale)
    : locale_(locale),
      days_(locale),
      year_first_(Whole(QStringLiteral("(\\d{4}) ?[-/.年년] ?(\\d{1,2}) ?[-/.月월] ?(\\d{1,2}) ?[.日일]?"))),
      // A word may stand behind it ("г.").
      year_last_(QStringLiteral("[-/., ] ?(\\d{4}|\\d{2})( ?[^\\d ]{1,2}\\.?)?$")) {}

DateReading FullDateReader::Read(const QString& text, int year) const {
  const WithoutWeekday typed = TakeOffWeekday(PlainText(text, locale_));
  DateReading reading = ReadPlain(typed.text, year);
  if (typed.weekday == 0 || !reading.date.isValid() || reading.date.dayOfWeek() == typed.weekday) {
    return reading;
  }
  return {.refusal = Translated("%1 is a %2.")
                         .arg(ShortDate(reading.date, locale_),
                              locale_.standaloneDayName(reading.date.dayOfWeek(), QLocale::LongFormat))};
}

FullDateReader::WithoutWeekday FullDateReader::TakeOffWeekday(const QString& plain) const {
  static const QRegularExpression before_date(QStringLiteral("^\\.?,? "));
  static const QRegularExpression behind_date(QStringLiteral(",? $"));
  for (int weekday = 1; weekday <= kDaysOfWeek; ++weekday) {
    // The longer first: a short one is the beginning of it.
    for (const auto format : {QLocale::LongFormat, QLocale::ShortFormat}) {
      for (const QString& given :
           {locale_.dayName(weekday, format), locale_.standaloneDayName(weekday, format)}) {
        const QString name = PlainText(given, locale_);
        if (name.isEmpty()) continue;
        const auto before = before_date.match(plain.mid(name.size()));
        if (plain.startsWith(name) && before.hasMatch()) {
          return {plain.mid(name.size() + before.capturedLength()), weekday};
        }
        const auto behind = behind_date.match(plain.chopped(std::min(name.size(), plain.size())));
        if (plain.endsWith(name) && behind.hasMatch()) return {plain.left(behind.capturedStart()), weekday};
      }
    }
  }
  return {plain, 0};
}

DateReading FullDateReader::ReadPlain(const QString& plain, int year) const {
  if (const auto reading = ReadFromYear(plain)) return *reading;
  // First as a day of the year, since its two digits may look like a year's.
  const DateReading of_year = days_.Read(plain, year);
  if (of_year.date.isValid()) return of_year;
  const DateReading reading = ReadUpToYear(plain).value_or(of_year);
  return reading.is_another_text ? NoDate(year) : reading;
}

DateReading FullDateReader::NoDate(int year) const {
  const QDate example(year, 12, 31);
  return {.refusal = Translated("This is no date. Write one such as %1 or %2 %3.")
                         .arg(ShortDate(example, locale_), QString::number(example.day()),
                              locale_.monthName(example.month(), QLocale::LongFormat)),
          .is_another_text = true};
}

std::optional<DateReading> FullDateReader::ReadFromYear(const QString& plain) const {
  const auto match = year_first_.match(plain);
  if (!match.hasMatch()) return std::nullopt;
  const QDate date(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt());
  if (date.isValid()) return DateReading{.date = date};
  return DateReading{.refusal = Translated("There is no day %1.").arg(plain)};
}

std::optional<DateReading> FullDateReader::ReadUpToYear(const QString& plain) const {
  const auto match = year_last_.match(plain);
  if (!match.hasMatch()) return std::nullopt;
  const int written = match.captured(1).toInt();
  const int year =
      written < kYearsOfTwoDigits && match.capturedLength(1) == 2 ? kThisCentury + written : written;
  if (year == 0) return std::nullopt;
  const QString front = plain.left(match.capturedStart());
  const DateReading reading = days_.Read(front, year);
  if (reading.date.isValid()) return reading;
  // A word may stand between the month and the year, as in "14 de abril de 2028".
  const DateReading without_word = days_.Read(front.left(front.lastIndexOf(QLatin1Char(' '))), year);
  return without_word.date.isValid() ? without_word : reading;
}

}  // namespace ferrowind::qt
