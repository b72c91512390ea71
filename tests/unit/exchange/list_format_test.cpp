#include "ferrowind/exchange/list_format.h"

#include <gtest/gtest.h>

namespace ferrowind::exchange {
namespace {

TEST(ListFormat, HasAName) {
  for (const ListFormat format :
       {ListFormat::kICalendar, ListFormat::kCsv, ListFormat::kJson, ListFormat::kText}) {
    EXPECT_EQ(FormatNamed(NameOf(format)), format);
  }
  EXPECT_EQ(FormatNamed("ICS"), ListFormat::kICalendar);
  EXPECT_FALSE(FormatNamed("pdf"));
  EXPECT_FALSE(FormatNamed(""));
}

TEST(ListFormat, IsToldByHowAListBeginsAndByItsName) {
  EXPECT_EQ(FormatOf("list.txt", "\r\nbegin:vCalendar\r\n"), ListFormat::kICalendar);
  EXPECT_EQ(FormatOf("list", " [\n"), ListFormat::kJson);
  EXPECT_EQ(FormatOf("list.csv", "{"), ListFormat::kJson);
  EXPECT_EQ(FormatOf("LIST.CSV", "2027-01-01"), ListFormat::kCsv);
  EXPECT_EQ(FormatOf("", "Date;Name\n"), ListFormat::kCsv);
  EXPECT_EQ(FormatOf("", "2027-01-01, New Year"), ListFormat::kText);
  EXPECT_EQ(FormatOf("", ""), ListFormat::kText);
}

}  // namespace
}  // namespace ferrowind::exchange
