#include "ferrowind/adapters/qt/dates/long_date.h"

#include <gtest/gtest.h>

namespace ferrowind::qt {
namespace {

const QDate kFriday(2028, 4, 14);

TEST(LongDate, IsWrittenAsTheLanguageWritesIt) {
  EXPECT_EQ(LongDate(kFriday, QLocale::c()), QStringLiteral("14 April 2028"));
  EXPECT_EQ(LongDate(kFriday, QLocale(QStringLiteral("de_DE"))), QStringLiteral("14. April 2028"));
  EXPECT_EQ(LongDate(kFriday, QLocale(QStringLiteral("es_ES"))), QStringLiteral("14 de abril de 2028"));
  EXPECT_EQ(LongDate(kFriday, QLocale(QStringLiteral("ja_JP"))), QStringLiteral("2028年4月14日"));
}

TEST(LongDate, HasTheWeekdayWhereItIsOfADay) {
  EXPECT_EQ(LongDay(kFriday, QLocale::c()), QStringLiteral("Friday 14 April 2028"));
  EXPECT_EQ(LongDay(kFriday, QLocale(QStringLiteral("de_DE"))), QStringLiteral("Freitag 14. April 2028"));
  EXPECT_EQ(LongDay(kFriday, QLocale(QStringLiteral("ja_JP"))), QStringLiteral("2028年4月14日金曜日"));
}

TEST(LongDate, TellsDayAndYearButNoWeekdayInEveryLocale) {
  for (const QLocale& locale :
       QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
    const QString text = LongDate(kFriday, locale);
    const QString told = locale.name() + QStringLiteral(": ") + text;
    EXPECT_TRUE(text.contains(locale.toString(kFriday, QStringLiteral("yyyy")))) << told.toStdString();
    EXPECT_TRUE(text.contains(locale.toString(kFriday, QStringLiteral("d")))) << told.toStdString();
    EXPECT_FALSE(text.contains(locale.dayName(kFriday.dayOfWeek()))) << told.toStdString();
    EXPECT_EQ(text, text.trimmed());
    EXPECT_TRUE(LongDay(kFriday, locale).contains(locale.toString(kFriday, QStringLiteral("dddd"))))
        << told.toStdString();
  }
}

}  // namespace
}  // namespace ferrowind::qt
