#include "ferrowind/exchange/csv_list.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/exchange/lists.h"

namespace ferrowind::exchange {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(CsvList, IsReadByTheNamesOfItsColumns) {
  EXPECT_THAT(Told(ReadCsvList("Type;Holiday;DATE;ccy\r\nbank holiday;\"New; Year\";2027-01-01;EUR\r\n\r\n"
                               "half day;;\"Friday, December 24, 2027\";\r\nopen;Fair;2027-02-06;EUR")),
              ElementsAre("2027-01-01 holiday New; Year (EUR), line 2", "2027-12-24 half day, line 4",
                          "2027-02-06 working day Fair (EUR), line 5"));
}

TEST(CsvList, NeedsNoHeader) {
  EXPECT_THAT(Told(ReadCsvList("2027-01-01,New Year\n2027-12-25")),
              ElementsAre("2027-01-01 holiday New Year, line 1", "2027-12-25 holiday, line 2"));
  EXPECT_THAT(Told(ReadCsvList("2027-01-01\tNew Year, Day\n")),
              ElementsAre("2027-01-01 holiday New Year, Day, line 1"));
}

TEST(CsvList, TellsColumnsThatItLeavesOut) {
  EXPECT_THAT(ReadCsvList("date,weekday,where\n2027-01-01,Friday,Rome\n").remarks,
              ElementsAre("The column \"where\" is left out"));
}

TEST(CsvList, CountsTheLinesWithinFields) {
  EXPECT_THAT(Told(ReadCsvList("date,name\n2027-01-01,\"New\nYear \"\"1\"\"\"\n2027-12-25,b\n")),
              ElementsAre("2027-01-01 holiday New Year \"1\", line 2", "2027-12-25 holiday b, line 4"));
}

TEST(CsvList, IsRefusedWithEachOfItsLines) {
  EXPECT_EQ(
      RefusalOf([] { return ReadCsvList("date,type\n2027-01-32,\n2027-01-01,observance\n2027-01-02,\n"); }),
      "line 2: there is no day \"2027-01-32\"; line 3: the type \"observance\" is none of holiday, weekend, "
      "working day and half day");
  EXPECT_EQ(RefusalOf([] { return ReadCsvList("day,name\n2027-01-01,a\n"); }),
            "line 1: there is neither a date in the first column nor a column that is called \"date\"");
  EXPECT_EQ(RefusalOf([] { return ReadCsvList("date,name,title\n2027-01-01,a,b\n"); }),
            "line 1: two columns are of the same kind: \"name\" and \"title\"");
  EXPECT_EQ(RefusalOf([] { return ReadCsvList("date,name\n\n2027-01-01,\"a\n"); }),
            "line 3: a quotation mark is not closed");
  EXPECT_EQ(RefusalOf([] { return ReadCsvList("date,name\n2027-01-01,\"a\" b\n"); }),
            "line 2: the end of the field is expected behind a quotation mark; one within a field is written "
            "twice");
}

TEST(CsvList, TellsNoMoreThanTheFirstFaults) {
  std::string text = "date\n";
  for (int i = 0; i < 30; ++i) text += "never\n";
  const std::string refusal = RefusalOf([&] { return ReadCsvList(text); });
  EXPECT_TRUE(refusal.ends_with("; and 10 more")) << refusal;
  EXPECT_NE(refusal.find("line 21: "), std::string::npos);
  EXPECT_EQ(refusal.find("line 22: "), std::string::npos);
}

TEST(CsvList, MayBeEmpty) {
  EXPECT_THAT(ReadCsvList("").days, IsEmpty());
  EXPECT_THAT(ReadCsvList("date,name\n").days, IsEmpty());
}

TEST(CsvList, IsReadAsItWasWritten) {
  const DayList list{{{{2027, 1, 1}, "Say \"hello\", J\xC3\xBCl", ListedKind::kHoliday, "EUR", 2},
                      {{2027, 1, 2}, "", ListedKind::kWeekend, "EUR", 3},
                      {{2027, 2, 6}, "Fair", ListedKind::kWorkingDay, "CNY", 4}}};
  EXPECT_EQ(
      WriteCsvList(list),
      "date,weekday,name,type,currency\r\n2027-01-01,Friday,\"Say \"\"hello\"\", J\xC3\xBCl\",holiday,EUR\r\n"
      "2027-01-02,Saturday,,weekend,EUR\r\n2027-02-06,Saturday,Fair,working day,CNY\r\n");
  EXPECT_EQ(ReadCsvList(WriteCsvList(list)).days, list.days);
}

TEST(CsvList, TakesHalfDaysByTheirNames) {
  EXPECT_THAT(Told(ReadCsvList("2027-12-24,Christmas Eve (Half Day)\n2027-11-26,Early close\n")),
              ElementsAre("2027-12-24 half day Christmas Eve (Half Day), line 1",
                          "2027-11-26 half day Early close, line 2"));
}

}  // namespace
}  // namespace ferrowind::exchange
