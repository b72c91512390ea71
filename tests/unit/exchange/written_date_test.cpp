#include "ferrowind/exchange/written_date.h"

#include <string>

#include <gtest/gtest.h>

namespace ferrowind::exchange {
namespace {

using platform::Date;

TEST(WrittenDate, IsReadInEveryFormThatMeansOneDay) {
  for (const char* text : {"2027-01-01",
                           "1 January 2027",
                           "01 jan 2027",
                           "1st January 2027",
                           "January 1, 2027",
                           "JANUARY 1 2027",
                           "Jan. 1, 2027",
                           "1. January 2027",
                           "01-Jan-2027",
                           "Friday, January 1, 2027",
                           "Fri 1 January 2027",
                           "Friday 2027-01-01",
                           "Jan 1st, 2027",
                           "  2027-01-01",
                           "January 1st 2027",
                           "1 January, 2027",
                           "01.01.2027",
                           "1.1.2027",
                           "Friday, 01.01.2027",
                           "01/01/2027",
                           "1/1/2027"}) {
    EXPECT_EQ(ReadWholeDate(text).date, Date(2027, 1, 1)) << text << ": " << ReadWholeDate(text).why_not;
  }
  EXPECT_EQ(ReadWholeDate("3 Sept 2027").date, Date(2027, 9, 3));
  EXPECT_EQ(ReadWholeDate("Thurs 29 February 2024").date, Date(2024, 2, 29));
  EXPECT_EQ(ReadWholeDate("31 December 1900").date, Date(1900, 12, 31));
  EXPECT_EQ(ReadWholeDate("2.1.2027").date, Date(2027, 1, 2));
  EXPECT_EQ(ReadWholeDate("26/03/2027").date, Date(2027, 3, 26));
  EXPECT_EQ(ReadWholeDate("3/26/2027").date, Date(2027, 3, 26));
}

TEST(WrittenDate, IsNotGuessedFromNumbers) {
  for (const char* text :
       {"01/02/2027",     "12/11/2027", "1.2.27",     "1.2-2027",     "001.02.2027", "1/26.2027",
        "2027/01/01",     "20270101",   "01-02-2027", "1 January 27", "1/1",         "",
        "January",        "1 January",  "2027-1-1",   "soon",         "2027-01-01x", "1 2 2027",
        "2027 January 1", "32nd 2027",  "2027-01-011"}) {
    const WrittenDate read = ReadWholeDate(text);
    EXPECT_FALSE(read.date) << text;
    EXPECT_EQ(read.why_not,
              "\"" + std::string(text) +
                  "\" does not begin with a date that can be read in one way only; YYYY-MM-DD is "
                  "expected, DD.MM.YYYY, or a month by its English name, as in 1 January 2027");
  }
}

TEST(WrittenDate, MustBeADayOfItsWeekday) {
  EXPECT_EQ(ReadWholeDate("Monday 1 January 2027").why_not,
            "\"Monday 1 January 2027\" contradicts itself: 2027-01-01 is a Friday");
  EXPECT_EQ(ReadWholeDate("29 February 2027").why_not, "there is no day \"29 February 2027\"");
  EXPECT_EQ(ReadWholeDate("2027-13-01").why_not, "there is no day \"2027-13-01\"");
  EXPECT_EQ(ReadWholeDate("1.13.2027").why_not, "there is no day \"1.13.2027\"");
  EXPECT_EQ(ReadWholeDate("13/14/2027").why_not, "there is no day \"13/14/2027\"");
  EXPECT_EQ(ReadWholeDate("0/0/2027").why_not, "there is no day \"0/0/2027\"");
  EXPECT_EQ(ReadWholeDate("Monday 01.01.2027").why_not,
            "\"Monday 01.01.2027\" contradicts itself: 2027-01-01 is a Friday");
  EXPECT_EQ(ReadWholeDate("1899-12-31").why_not, "the year of \"1899-12-31\" is not one from 1900 to 3000");
  EXPECT_EQ(ReadWholeDate("3001-01-01").why_not, "the year of \"3001-01-01\" is not one from 1900 to 3000");
}

TEST(WrittenDate, LeavesWhatStandsBehindIt) {
  EXPECT_EQ(ReadDateAtFront("2027-01-01 New Year").rest, " New Year");
  EXPECT_EQ(ReadDateAtFront("Fri, 1 January 2027, New Year").rest, ", New Year");
  EXPECT_EQ(ReadWholeDate("2027-01-01 New Year").why_not,
            "\"2027-01-01 New Year\" is no date; YYYY-MM-DD is expected, DD.MM.YYYY, or a month by its "
            "English name, as in 1 "
            "January 2027");
}

}  // namespace
}  // namespace ferrowind::exchange
