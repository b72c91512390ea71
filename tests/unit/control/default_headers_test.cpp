#include "ferrowind/control/default_headers.h"

#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

namespace ferrowind {
namespace {

using Column = std::tuple<std::string, std::string, std::string, bool>;

std::vector<Column> ColumnsOf(const GridFields& map) {
  std::vector<Column> columns;
  for (std::int32_t i = 1; i <= map.Count(); ++i) {
    const auto column = map.LocalNames(i);
    EXPECT_EQ(column, map.Fields(i)) << "both lists have the same order";
    EXPECT_TRUE(column->IsConst()) << column->LocalName();
    columns.emplace_back(column->LocalName(), column->FieldName(), column->Caption(), column->Visible());
  }
  return columns;
}

TEST(DefaultHeaders, AreTheNineColumnsOfTheDayGridAllConstantAndVisible) {
  GridFields map;
  AddDefaultHeaders(map);
  const std::vector<Column> expected = {
      {"FullDate", "ODate", "Date", true},
      {"HolidayType", "TID1", "Day type", true},
      {"HolidayName", "Name1", "Holiday name", true},
      {"Description", "Comment2", "Description", true},
      {"Comment", "Comment", "Comment", true},
      {"DayOfYear", "STUB_2", "Day of year", true},
      {"DayOfMonth", "STUB_4", "Day of month", true},
      {"Month", "STUB_5", "Month", true},
      {"MonthName", "STUB_6", "Month name", true},
  };
  EXPECT_EQ(ColumnsOf(map), expected);
}

TEST(DefaultHolidayHeaders, AreTheNineColumnsOfTheHolidayGridAllConstantTheLastThreeHidden) {
  GridFields map;
  AddDefaultHolidayHeaders(map);
  const std::vector<Column> expected = {
      {"Name", "Name1", "Name", true},
      {"FullDate", "D1", "Full date", true},
      {"HolidayType", "TID1", "Holiday type", true},
      {"Comment", "Comment", "Comment", true},
      {"DayOfMonth", "MD", "Day of month", true},
      {"MonthOfYear", "MY", "Month of year", true},
      {"ID_Holiday", "ID2", "ID holiday", false},
      {"DayOfWeek", "WD", "Day of week", false},
      {"Del", "Del", "Del", false},
  };
  EXPECT_EQ(ColumnsOf(map), expected);
}

}  // namespace
}  // namespace ferrowind
