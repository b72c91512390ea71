#include "ferrowind/almanac/base_dates.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/almanac/easter.h"

namespace ferrowind::almanac {
namespace {

using platform::Date;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

DateTables Tables() {
  DateTables tables;
  tables.Add(
      {"feast", 2025, 2027, {Date(2025, 1, 1), Date(2025, 12, 30), Date(2026, 7, 4), Date(2027, 1, 2)}});
  return tables;
}

/// The base dates of the year as "01-31".
std::vector<std::string> Dates(const std::string& expression, int year) {
  std::vector<std::string> texts;
  for (const Date& date : BaseDates(DateExpression::Parse(expression), year, Tables())) {
    EXPECT_EQ(date.Year(), year);
    texts.push_back(date.ToIso().substr(5));
  }
  return texts;
}

TEST(BaseDates, OfAFixedDateAreOneAYear) { EXPECT_THAT(Dates("12-25", 2026), ElementsAre("12-25")); }

TEST(BaseDates, OfALeapDayAreInLeapYearsOnly) {
  EXPECT_THAT(Dates("02-29", 2028), ElementsAre("02-29"));
  EXPECT_THAT(Dates("02-29", 2026), IsEmpty());
  EXPECT_THAT(Dates("02-29", 2100), IsEmpty());
  EXPECT_THAT(Dates("02-29", 2000), ElementsAre("02-29"));
}

TEST(BaseDates, OfASingleDateAreInItsYearOnly) {
  EXPECT_THAT(Dates("2022-09-19", 2022), ElementsAre("09-19"));
  EXPECT_THAT(Dates("2022-09-19", 2023), IsEmpty());
}

TEST(BaseDates, OfEasterCountFromTheSunday) {
  EXPECT_THAT(Dates("easter", 2028), ElementsAre("04-16"));
  EXPECT_THAT(Dates("easter-2", 2028), ElementsAre("04-14"));
  EXPECT_THAT(Dates("easter+60", 2028), ElementsAre("06-15"));
  EXPECT_THAT(Dates("orthodox+1", 2027), ElementsAre("05-03"));
}

TEST(BaseDates, WithALargeOffsetBelongToTheYearTheyFallIn) {
  EXPECT_THAT(Dates("easter+300", 2028), ElementsAre("01-22"));
  EXPECT_THAT(Dates("easter-120", 2028), ElementsAre("12-02"));
  EXPECT_THAT(Dates("easter+366", 2028), ElementsAre("03-28"));
  // Easter 2035 is on 25 March, Easter 2034 on 9 April.
  EXPECT_THAT(Dates("easter-84", 2035), IsEmpty());
  EXPECT_THAT(Dates("easter-84", 2034), ElementsAre("01-15", "12-31"));
}

TEST(BaseDates, OfEveryEasterAreFoundInTheYearTheyFallIn) {
  for (const Church church : {Church::kWestern, Church::kOrthodox}) {
    for (const int offset : {-366, -130, -115, -100, -80, 0, 230, 245, 260, 280, 366}) {
      DateExpression expression;
      expression.anchor = EasterDate{church, offset};
      std::vector<Date> expected;
      std::vector<Date> found;
      for (int year = 2000; year <= 2100; ++year) {
        const Date day = Date::FromSerial(EasterSunday(church, year) + offset);
        if (day.Year() >= 2003 && day.Year() <= 2097) expected.push_back(day);
        if (year < 2003 || year > 2097) continue;
        for (const Date& date : BaseDates(expression, year, {})) found.push_back(date);
      }
      EXPECT_EQ(found, expected) << expression.ToText();
    }
  }
}

TEST(BaseDates, OfAnNthWeekdayCountInTheMonth) {
  EXPECT_THAT(Dates("1st Monday of 06", 2026), ElementsAre("06-01"));
  EXPECT_THAT(Dates("1st Sunday of 06", 2026), ElementsAre("06-07"));
  EXPECT_THAT(Dates("4th Thursday of 11", 2026), ElementsAre("11-26"));
  EXPECT_THAT(Dates("last Monday of 05", 2026), ElementsAre("05-25"));
  EXPECT_THAT(Dates("last Sunday of 05", 2026), ElementsAre("05-31"));
  EXPECT_THAT(Dates("last Thursday of 02", 2024), ElementsAre("02-29"));
}

TEST(BaseDates, OfAFifthWeekdayAreInMonthsThatHaveOne) {
  EXPECT_THAT(Dates("5th Friday of 01", 2026), ElementsAre("01-30"));
  EXPECT_THAT(Dates("5th Monday of 01", 2026), IsEmpty());
}

TEST(BaseDates, OfARelationCountTheDayItselfOrNot) {
  // 18 May 2026 is a Monday.
  EXPECT_THAT(Dates("Monday on or after 05-18", 2026), ElementsAre("05-18"));
  EXPECT_THAT(Dates("Monday after 05-18", 2026), ElementsAre("05-25"));
  EXPECT_THAT(Dates("Monday on or before 05-18", 2026), ElementsAre("05-18"));
  EXPECT_THAT(Dates("Monday before 05-18", 2026), ElementsAre("05-11"));
  EXPECT_THAT(Dates("Sunday on or after 05-18", 2026), ElementsAre("05-24"));
  EXPECT_THAT(Dates("Sunday after 05-18", 2026), ElementsAre("05-24"));
  EXPECT_THAT(Dates("Sunday on or before 05-18", 2026), ElementsAre("05-17"));
  EXPECT_THAT(Dates("Sunday before 05-18", 2026), ElementsAre("05-17"));
}

TEST(BaseDates, OfSeveralRelationsBeginWithTheLast) {
  EXPECT_THAT(Dates("Friday after 4th Thursday of 11", 2026), ElementsAre("11-27"));
  EXPECT_THAT(Dates("Tuesday after Monday before Friday on or before easter", 2026), ElementsAre("03-31"));
}

TEST(BaseDates, OfARelationBelongToTheYearTheyFallIn) {
  // 30 December is a Wednesday in 2026, a Tuesday in 2025 and a Thursday in 2027.
  EXPECT_THAT(Dates("Monday on or after 12-30", 2026), ElementsAre("01-05"));
  EXPECT_THAT(Dates("Monday on or after 12-30", 2027), ElementsAre("01-04"));
  EXPECT_THAT(Dates("Thursday on or before 01-01", 2026), ElementsAre("01-01", "12-31"));
}

TEST(BaseDates, OfAnEquinoxDependOnTheClocks) {
  EXPECT_THAT(Dates("vernal equinox +09:00", 2026), ElementsAre("03-20"));
  EXPECT_THAT(Dates("autumnal equinox +09:00", 2028), ElementsAre("09-22"));
  // 20 March 2026, 14:46 UTC.
  EXPECT_THAT(Dates("vernal equinox +09:30", 2026), ElementsAre("03-21"));
}

TEST(BaseDates, OfATableAreItsDatesWithTheOffset) {
  EXPECT_THAT(Dates("table feast", 2025), ElementsAre("01-01", "12-30"));
  EXPECT_THAT(Dates("table feast+3", 2026), ElementsAre("01-02", "07-07"));
  EXPECT_THAT(Dates("table feast-1", 2026), ElementsAre("07-03"));
  EXPECT_THAT(Dates("Monday after table feast", 2026), ElementsAre("01-05", "07-06"));
}

TEST(BaseDates, OfATableThatDoesNotReachTheYearAreNone) {
  EXPECT_THAT(Dates("table feast", 2028), IsEmpty());
  EXPECT_THAT(Dates("table feast", 2024), IsEmpty());
  EXPECT_THAT(Dates("table fast", 2025), IsEmpty());
}

TEST(BaseDates, OfAWeekdayAreEveryWeek) {
  const auto sundays = Dates("weekday Sunday", 2023);
  EXPECT_EQ(sundays.size(), 53U);
  EXPECT_EQ(sundays.front(), "01-01");
  EXPECT_EQ(sundays.back(), "12-31");
}

TEST(BaseDates, OfADayBetweenAreKnownToPlansOnly) { EXPECT_THAT(Dates("between", 2026), IsEmpty()); }

TEST(BaseDates, CountOnTheWeekdaysOfIfOnly) {
  // 17 September is a Thursday in 2026 and a Friday in 2027.
  EXPECT_THAT(Dates("09-17 if monday, friday", 2026), IsEmpty());
  EXPECT_THAT(Dates("09-17 if monday, friday", 2027), ElementsAre("09-17"));
}

TEST(BaseDates, CountInTheYearsOfTheExpressionOnly) {
  EXPECT_THAT(Dates("01-01 from 2026", 2025), IsEmpty());
  EXPECT_THAT(Dates("01-01 from 2026", 2026), ElementsAre("01-01"));
  EXPECT_THAT(Dates("01-01 to 2026", 2027), IsEmpty());
  // The year is that of the date, not of the Easter it is counted from.
  EXPECT_THAT(Dates("easter+300 only 2028", 2028), ElementsAre("01-22"));
  EXPECT_THAT(Dates("easter+300 only 2027", 2028), IsEmpty());
}

TEST(BaseDates, AreThereWhenAnyYearThatPlansKnowHasOne) {
  const char* const expressions[] = {"12-25",
                                     "02-29 only 1900, 2100",
                                     "02-29 only 1900, 1904",
                                     "02-29 from 1900 to 1903",
                                     "02-29 from 2197",
                                     "01-01 if Monday only 2026",
                                     "01-01 if Thursday only 2026",
                                     "01-01 not 2026",
                                     "2026-09-17",
                                     "2026-09-17 if Monday",
                                     "2026-09-17 from 2027",
                                     "2026-09-17 to 2025",
                                     "Monday after 2026-12-31",
                                     "Monday after 2026-12-31 only 2026",
                                     "Monday after 2026-12-31 only 2027",
                                     "Friday before 1900-01-01",
                                     "easter+300 only 2028",
                                     "table feast",
                                     "table feast only 2024",
                                     "table feast from 2027",
                                     "table feast+40 only 2028",
                                     "table fast",
                                     "weekday Sunday",
                                     "weekday Sunday only 2020",
                                     "between"};
  for (const char* const text : expressions) {
    const auto expression = DateExpression::Parse(text);
    bool is_found = false;
    for (int year = kFirstYear; year <= kLastYear; ++year) {
      is_found = is_found || !BaseDates(expression, year, Tables()).empty();
    }
    EXPECT_EQ(HasBaseDates(expression, Tables()), is_found) << text;
  }
}

}  // namespace
}  // namespace ferrowind::almanac
