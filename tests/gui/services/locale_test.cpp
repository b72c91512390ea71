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

TEST(QtClock, TellsTheDayOfTheOperatorsTimeZone) {
  const QDate before = QDate::currentDate();
  const platform::Date today = QtClock().Today();
  const QDate after = QDate::currentDate();
  EXPECT_TRUE(ToQt(today) == before || ToQt(today) == after);
}

}  // namespace
}  // namespace ferrowind::qt
