#include <QDate>

#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/services/qt_clock.h"
#include "ferrowind/adapters/qt/services/qt_locale.h"
#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {
namespace {

TEST(QtLocale, NamesMonthsInFull) {
  const QtLocale english{QLocale(QLocale::English)};
  EXPECT_EQ(english.MonthName(1), "January");
  EXPECT_EQ(english.MonthName(12), "December");
}

TEST(QtLocale, NamesMonthsAsTheyStandAlone) {
  EXPECT_EQ(QtLocale(QLocale(QLocale::Russian)).MonthName(5), "\xD0\xBC\xD0\xB0\xD0\xB9");
}

TEST(QtLocale, CountsWeekdaysFromSunday) {
  const QtLocale english{QLocale(QLocale::English)};
  EXPECT_EQ(english.WeekdayName(1), "Sunday");
  EXPECT_EQ(english.WeekdayName(2), "Monday");
  EXPECT_EQ(english.WeekdayName(7), "Saturday");
}

TEST(QtLocale, RefusesAnyOtherNumber) {
  const QtLocale locale;
  for (const int month : {0, 13, -1})
    EXPECT_THROW(static_cast<void>(locale.MonthName(month)), platform::Failure);
  for (const int day : {0, 8, -1})
    EXPECT_THROW(static_cast<void>(locale.WeekdayName(day)), platform::Failure);
}

TEST(QtLocale, WritesDatesInTheDigitsOfAllOtherNumbersAndReadsThem) {
  EXPECT_EQ(QtLocale(QLocale(QStringLiteral("ar_EG"))).LongDateText({2028, 4, 14}), "14 أبريل 2028");
  EXPECT_EQ(QtLocale(QLocale(QStringLiteral("ar_EG"))).DateText({2028, 4, 14}), "14/4/2028 الجمعة")
      << "without marks that would part its numbers within an English sentence";
  const platform::Date date(2028, 12, 31);
  for (const QLocale& each :
       QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
    const QtLocale locale(each);
    for (const std::string& text :
         {locale.DateText(date), locale.LongDateText(date), locale.LongDayText(date)}) {
      for (const char32_t character : ToQt(text).toUcs4()) {
        EXPECT_TRUE(QChar::digitValue(character) < 0 || character <= U'9') << text;
      }
    }
    EXPECT_EQ(locale.ReadDate(locale.DateText(date), 2028).date, date) << each.name().toStdString();
  }
}

TEST(QtClock, TellsTheDayOfTheOperatorsTimeZone) {
  const QDate before = QDate::currentDate();
  const platform::Date today = QtClock().Today();
  const QDate after = QDate::currentDate();
  EXPECT_TRUE(ToQt(today) == before || ToQt(today) == after);
}

}  // namespace
}  // namespace ferrowind::qt
