#include "ferrowind/adapters/qt/dates/short_date.h"

#include <gtest/gtest.h>

namespace ferrowind::qt {
namespace {

TEST(ShortDate, HasFourDigitsOfTheYearInEveryLocale) {
  const QDate date(2028, 3, 4);
  for (const QLocale& locale :
       QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
    const QString text = ShortDate(date, locale);
    EXPECT_EQ(text.count(locale.toString(date, QStringLiteral("yyyy"))), 1)
        << locale.name().toStdString() << ": " << text.toStdString();
  }
}

TEST(ShortDate, IsTheLocalesShortFormatOtherwise) {
  const QDate date(2028, 3, 4);
  EXPECT_EQ(ShortDate(date, QLocale(QStringLiteral("en_US"))), QStringLiteral("3/4/2028"));
  EXPECT_EQ(ShortDate(date, QLocale(QStringLiteral("de_DE"))), QStringLiteral("04.03.2028"));
  EXPECT_EQ(ShortDate(date, QLocale(QStringLiteral("en_GB"))), QStringLiteral("04/03/2028"));
  EXPECT_EQ(ShortDate(date, QLocale(QStringLiteral("sv_SE"))), QStringLiteral("2028-03-04"));
  EXPECT_EQ(ShortDate(date, QLocale::c()), QStringLiteral("4 Mar 2028"));
}

}  // namespace
}  // namespace ferrowind::qt
