#include "ferrowind/adapters/qt/dates/date_reader.h"

#include <functional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ferrowind::qt {
namespace {

using testing::HasSubstr;

constexpr int kLeapYear = 2028;
constexpr int kCommonYear = 2027;

QString ReadIn(const char* locale, const QString& text, int year = kLeapYear) {
  const DateReading reading = DateReader(QLocale(QString::fromLatin1(locale))).Read(text, year);
  EXPECT_NE(reading.date.isValid(), !reading.refusal.isEmpty()) << "either a date or a refusal";
  return reading.date.toString(Qt::ISODate);
}

std::string RefusalIn(const char* locale, const char* text, int year = kLeapYear) {
  const DateReading reading =
      DateReader(QLocale(QString::fromLatin1(locale))).Read(QString::fromUtf8(text), year);
  EXPECT_FALSE(reading.date.isValid()) << text << " was read as " << reading.date.toString().toStdString();
  return reading.refusal.toStdString();
}

#define EXPECT_READ(locale, text, month_and_day) \
  EXPECT_EQ(ReadIn(locale, QString::fromUtf8(text)), QStringLiteral("2028-" month_and_day)) << (text)

/// Expects every day of a leap year to be read from the text that `write` makes of it.
void ExpectEveryDay(const QLocale& locale, const std::function<QString(const QDate&)>& write) {
  const DateReader reader(locale);
  for (QDate date(kLeapYear, 1, 1); date.year() == kLeapYear; date = date.addDays(1)) {
    const DateReading reading = reader.Read(write(date), kLeapYear);
    ASSERT_EQ(reading.date, date) << locale.name().toStdString() << ": " << write(date).toStdString() << ": "
                                  << reading.refusal.toStdString();
  }
}

TEST(DateReader, ReadsEveryDayAsAFieldShowsItInEveryLanguage) {
  const auto locales =
      QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
  ASSERT_GT(locales.size(), 300);
  for (const QLocale& locale : locales) {
    ExpectEveryDay(locale, [&](const QDate& date) { return locale.toString(date, u"d'  'MMMM"); });
  }
}

class DateReaderOfALocale : public testing::TestWithParam<const char*> {
 protected:
  QLocale locale_{QString::fromLatin1(GetParam())};

  void ExpectEveryDayAs(const std::vector<const char*>& formats) const {
    for (const char* format : formats) {
      ExpectEveryDay(locale_,
                     [&](const QDate& date) { return locale_.toString(date, QString::fromLatin1(format)); });
    }
  }
  [[nodiscard]] bool IsMonthFirst() const {
    const QString format = locale_.dateFormat(QLocale::ShortFormat);
    return format.indexOf(QLatin1Char('M')) < format.indexOf(QLatin1Char('d'));
  }
};

TEST_P(DateReaderOfALocale, ReadsEveryDayByTheNameOfItsMonth) {
  ExpectEveryDayAs({"d MMMM", "dd MMMM", "d. MMMM", "d-MMMM", "d MMM", "d MMM.", "MMMM d", "MMMM dd",
                    "MMMM d.", "MMM d", "MMM. d", "  d  MMMM  "});
}

TEST_P(DateReaderOfALocale, ReadsEveryDayByNamesStandingAloneAndWhateverTheirCase) {
  for (const auto form : {QLocale::LongFormat, QLocale::ShortFormat}) {
    ExpectEveryDay(locale_, [&](const QDate& date) {
      return QString::number(date.day()) + QLatin1Char(' ') +
             locale_.toUpper(locale_.standaloneMonthName(date.month(), form));
    });
  }
}

TEST_P(DateReaderOfALocale, ReadsEveryDayByTwoNumbersInItsOrder) {
  if (IsMonthFirst()) {
    ExpectEveryDayAs({"M.d", "MM.dd.", "M/d", "MM/dd", "MM-dd", "M-d"});
  } else {
    ExpectEveryDayAs({"d.M", "dd.MM.", "d. M.", "d/M", "dd/MM"});
  }
}

TEST_P(DateReaderOfALocale, ReadsADayAboveTwelveInEitherOrder) {
  for (const char* format : {"d.M", "M.d", "d/M", "M/d", "d-M", "M-d"}) {
    const DateReader reader(locale_);
    for (QDate date(kLeapYear, 1, 1); date.year() == kLeapYear; date = date.addDays(1)) {
      if (date.day() <= 12) continue;
      const QString text = locale_.toString(date, QString::fromLatin1(format));
      ASSERT_EQ(reader.Read(text, kLeapYear).date, date) << text.toStdString();
    }
  }
}

TEST_P(DateReaderOfALocale, NeverGuessesTheOrderByAHyphenWhereTheDayIsFirst) {
  if (IsMonthFirst()) return ExpectEveryDayAs({"MM-dd", "M-d"});
  const DateReader reader(locale_);
  for (const char* format : {"MM-dd", "dd-MM", "M-d", "d-M", "M-dd", "dd - MM"}) {
    for (QDate date(kLeapYear, 1, 1); date.year() == kLeapYear; date = date.addDays(1)) {
      const QString text = locale_.toString(date, QString::fromLatin1(format));
      const DateReading reading = reader.Read(text, kLeapYear);
      const bool can_be_another = date.day() <= 12 && date.day() != date.month();
      ASSERT_EQ(reading.date, can_be_another ? QDate() : date) << text.toStdString();
      ASSERT_EQ(reading.refusal.contains(QStringLiteral(" can be ")), can_be_another) << text.toStdString();
    }
  }
}

TEST_P(DateReaderOfALocale, ReadsNoDayThatDoesNotExistInAnyForm) {
  const DateReader reader(locale_);
  for (int month = 1; month <= 12; ++month) {
    for (int day = QDate(kLeapYear, month, 1).daysInMonth() + 1; day <= 99; ++day) {
      const QString number = QString::number(day);
      const QString name = locale_.monthName(month, QLocale::LongFormat);
      const QString digits = QString::number(month);
      for (const QString& text : {number + u' ' + name, name + u' ' + number, number + u'.' + digits,
                                  digits + u'/' + number, digits + u'-' + number}) {
        ASSERT_FALSE(reader.Read(text, kLeapYear).date.isValid()) << text.toStdString();
      }
    }
  }
}

TEST_P(DateReaderOfALocale, RefusesTheTwentyNinthOfFebruaryInACommonYearAlone) {
  const DateReader reader(locale_);
  const QString text = QStringLiteral("29 ") + locale_.monthName(2);
  for (const QString& typed :
       {text, QStringLiteral("29.2"), QStringLiteral("2/29"), QStringLiteral("02-29")}) {
    EXPECT_EQ(reader.Read(typed, kLeapYear).date, QDate(kLeapYear, 2, 29)) << typed.toStdString();
    const DateReading refused = reader.Read(typed, kCommonYear);
    EXPECT_FALSE(refused.date.isValid());
    EXPECT_EQ(refused.refusal, QStringLiteral("There is no %1 in 2027.").arg(text));
  }
}

TEST_P(DateReaderOfALocale, ItsOwnExampleIsADate) {
  const DateReader reader(locale_);
  const QString refusal = reader.Read({}, kLeapYear).refusal;
  const QString lead = QStringLiteral("This is no date. Write a day and a month without a year, such as ");
  ASSERT_TRUE(refusal.startsWith(lead)) << refusal.toStdString();
  const QString examples = refusal.sliced(lead.size()).chopped(1);
  for (const QString& example : examples.split(QStringLiteral(" or ")))
    EXPECT_EQ(reader.Read(example, kLeapYear).date, QDate(kLeapYear, 12, 31)) << example.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Locales, DateReaderOfALocale,
                         testing::Values("en_GB", "en_US", "de_DE", "pl_PL", "fr_FR", "ja_JP", "cs_CZ", "C"));

TEST(DateReader, ReadsANumberPairInTheOrderOfTheLocale) {
  EXPECT_READ("en_GB", "5/6", "06-05");
  EXPECT_READ("de_DE", "5.6.", "06-05");
  EXPECT_READ("en_US", "5/6", "05-06");
  EXPECT_READ("en_US", "5.6", "05-06");
  EXPECT_READ("ja_JP", "5/6", "05-06");
}

TEST(DateReader, ReadsAHyphenAsIsoDoesWhereNothingContradictsIt) {
  EXPECT_READ("en_US", "05-06", "05-06");
  EXPECT_READ("sv_SE", "05-06", "05-06");
  EXPECT_READ("en_GB", "12-31", "12-31");
  EXPECT_READ("en_GB", "05-05", "05-05");
  EXPECT_READ("en_GB", "12\u201331", "12-31");
}

TEST(DateReader, RefusesNumbersThatCouldBeTwoDays) {
  // ISO 8601 has the month first; a British date the day, and a Dutch one has hyphens besides. A Swedish date
  // has the year first, while people write 5/6 for June.
  EXPECT_EQ(RefusalIn("en_GB", "05-06"), "05-06 can be 5 June or 6 May. Write the name of the month.");
  EXPECT_EQ(RefusalIn("nl_NL", "05-06"), "05-06 can be 5 juni or 6 mei. Write the name of the month.");
  EXPECT_EQ(RefusalIn("en_GB", "5-6"), "5-6 can be 5 June or 6 May. Write the name of the month.");
  EXPECT_THAT(RefusalIn("sv_SE", "5/6"), HasSubstr("can be"));
  EXPECT_READ("sv_SE", "31/12", "12-31");
  EXPECT_READ("nl_NL", "31-12", "12-31");
  EXPECT_READ("sv_SE", "5/5", "05-05");
}

TEST(DateReader, ReadsShortenedNamesThatFitOneMonthOnly) {
  EXPECT_READ("en_GB", "1 Sep", "09-01");
  EXPECT_READ("en_GB", "1 Sept.", "09-01");
  EXPECT_READ("de_DE", "1. M\u00e4r", "03-01");
  EXPECT_READ("pl_PL", "1 lip", "07-01");
  RefusalIn("en_GB", "1 Ju");
  RefusalIn("en_GB", "1 Decembe");
  RefusalIn("fr_FR", "1 jui");
}

TEST(DateReader, ReadsTheEndingsAndWordsThatALanguagePutsIntoADate) {
  EXPECT_READ("en_GB", "31st December", "12-31");
  EXPECT_READ("en_US", "December 2nd", "12-02");
  EXPECT_READ("en_US", "4July", "07-04");
  EXPECT_READ("fr_FR", "1er janvier", "01-01");
  EXPECT_READ("es_ES", "31 de diciembre", "12-31");
  EXPECT_READ("pt_BR", "1\u00ba de janeiro", "01-01");
  EXPECT_READ("ja_JP", "12\u670831\u65e5", "12-31");
  EXPECT_READ("ja_JP", "\uff11\uff12/\uff13\uff11", "12-31");
}

TEST(DateReader, KnowsInflectedNamesAndThoseThatStandAlone) {
  EXPECT_READ("pl_PL", "31 grudnia", "12-31");
  EXPECT_READ("pl_PL", "31 grudzie\u0144", "12-31");
  EXPECT_READ("cs_CZ", "31. prosince", "12-31");
  EXPECT_READ("cs_CZ", "31. prosinec", "12-31");
}

TEST(DateReader, FoldsCaseByTheRulesOfTheLanguage) {
  EXPECT_READ("tr_TR", "1 KASIM", "11-01");
  EXPECT_READ("tr_TR", "1 N\u0130SAN", "04-01");
  EXPECT_READ("de_DE", "1 M\u00c4RZ", "03-01");
}

TEST(DateReader, RefusesWhatIsNoDate) {
  for (const char* text : {"",
                           " ",
                           "3",
                           "31",
                           "December",
                           "31 Foo",
                           "Foo 31",
                           "31 December 2028",
                           "31.12.2028",
                           "2028-12-31",
                           "12/31/28",
                           "31,12",
                           "31 12",
                           "3112",
                           "1231",
                           "31..12",
                           "31.12..",
                           "31/12.",
                           "-31 December",
                           "0 December",
                           "00.12",
                           "0/0",
                           "13/13",
                           "31 Decembers",
                           "x31 December",
                           "31 December x",
                           "131 December",
                           "31 1 December",
                           "tomorrow",
                           "today",
                           "31 Dec ember",
                           "1.5 May",
                           "'\";--%",
                           "\xc3\xa4\xe2\x82\xac"}) {
    EXPECT_EQ(RefusalIn("en_GB", text),
              "This is no date. Write a day and a month without a year, such as 31 December or 31/12.")
        << text;
  }
}

TEST(DateReader, TellsOfAMonthThatIsShorter) {
  EXPECT_EQ(RefusalIn("en_GB", "31 April"), "There is no 31 April: the month has 30 days.");
  EXPECT_EQ(RefusalIn("en_GB", "31/4"), "There is no 31 April: the month has 30 days.");
  EXPECT_EQ(RefusalIn("en_GB", "30 Feb"), "There is no 30 February: the month has 29 days.");
  EXPECT_EQ(RefusalIn("en_US", "2/30", kCommonYear), "There is no 30 February: the month has 28 days.");
  EXPECT_EQ(RefusalIn("en_GB", "32 December"), "There is no 32 December: the month has 31 days.");
}

}  // namespace
}  // namespace ferrowind::qt
