#include "ferrowind/adapters/qt/dates/full_date_reader.h"

#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/dates/short_date.h"

namespace ferrowind::qt {
namespace {

constexpr int kYear = 2026;

QLocale Named(const char* name) { return QLocale(QString::fromLatin1(name)); }

/// The date as ISO 8601 has it, or the refusal.
std::string Read(const QLocale& locale, const char* text) {
  const DateReading reading = FullDateReader(locale).Read(QString::fromUtf8(text), kYear);
  return (reading.date.isValid() ? reading.date.toString(Qt::ISODate) : reading.refusal).toStdString();
}

TEST(FullDateReader, ReadsDatesWithTheirYearAsPeopleWriteThem) {
  struct Case {
    const char* locale;
    const char* text;
  };
  for (const Case& written : std::initializer_list<Case>{{"en_GB", "14 April 2028"},
                                                         {"en_GB", "14th apr 2028"},
                                                         {"en_GB", "14/4/2028"},
                                                         {"en_GB", "14/04/28"},
                                                         {"en_US", "April 14, 2028"},
                                                         {"en_US", "4/14/2028"},
                                                         {"en_US", "4/14/28"},
                                                         {"de_DE", "14.4.2028"},
                                                         {"de_DE", "14.04.28"},
                                                         {"de_DE", "14. April 2028"},
                                                         {"es_ES", "14 de abril de 2028"},
                                                         {"fr_FR", "14 avril 2028"},
                                                         {"sv_SE", "2028-04-14"},
                                                         {"ja_JP", "2028/04/14"},
                                                         {"ja_JP", "2028年4月14日"},
                                                         {"ko_KR", "2028. 4. 14."},
                                                         {"ar_EG", "١٤/٤/٢٠٢٨"},
                                                         {"en_GB", "2028-04-14"},
                                                         {"de_DE", "2028-4-14"}}) {
    EXPECT_EQ(Read(Named(written.locale), written.text), "2028-04-14")
        << written.locale << " " << written.text;
  }
}

TEST(FullDateReader, TakesTheYearOfTheCalendarWhereNoneIsWritten) {
  EXPECT_EQ(Read(Named("en_GB"), "14 April"), "2026-04-14");
  EXPECT_EQ(Read(Named("de_DE"), "31.12."), "2026-12-31");
  EXPECT_EQ(Read(Named("de_DE"), "31.12"), "2026-12-31") << "no year 12";
}

TEST(FullDateReader, ReadsAWeekdayAlongAndRefusesAWrongOne) {
  EXPECT_EQ(Read(Named("en_GB"), "Fri 14/04/2028"), "2028-04-14");
  EXPECT_EQ(Read(Named("en_GB"), "14/04/2028 Fri"), "2028-04-14");
  EXPECT_EQ(Read(Named("ja_JP"), "2028/04/14 金"), "2028-04-14");
  EXPECT_EQ(Read(Named("en_GB"), "Friday, 14 April 2028"), "2028-04-14");
  EXPECT_EQ(Read(Named("de_DE"), "Fr. 14.4.2028"), "2028-04-14");
  EXPECT_EQ(Read(Named("en_GB"), "Thursday 14 April 2028"), "14/04/2028 is a Friday.");
}

TEST(FullDateReader, RefusesWhatIsNoDateOrTwo) {
  EXPECT_EQ(Read(Named("en_GB"), "30 February 2028"), "There is no 30 February: the month has 29 days.");
  EXPECT_EQ(Read(Named("en_GB"), "29 February 2027"), "There is no 29 February in 2027.");
  EXPECT_EQ(Read(Named("en_GB"), "2027-02-29"), "There is no day 2027-02-29.");
  EXPECT_EQ(Read(Named("sv_SE"), "4/5/2028"), "4/5 can be 4 maj or 5 april. Write the name of the month.");
  for (const char* const text :
       {"", "Easter", "2028", "14", "14 April 2028 13:00", "14 April 128", "1 2 3 4"}) {
    EXPECT_EQ(Read(Named("en_GB"), text), "This is no date. Write one such as 31/12/2026 or 31 December.")
        << text;
  }
}

/// What a window shows can be typed again, whatever the language.
TEST(FullDateReader, ReadsTheShortDatesOfEveryLocaleBackOrRefusesThem) {
  int read_back = 0;
  int all = 0;
  for (const QLocale& locale :
       QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
    const FullDateReader reader(locale);
    for (const QDate date : {QDate(2028, 4, 14), QDate(2028, 3, 4), QDate(2027, 12, 31)}) {
      const DateReading reading = reader.Read(ShortDate(date, locale), kYear);
      ++all;
      if (reading.date.isValid()) {
        EXPECT_EQ(reading.date, date) << locale.name().toStdString();
        ++read_back;
      }
    }
  }
  EXPECT_GT(read_back, all * 9 / 10);
}

}  // namespace
}  // namespace ferrowind::qt
