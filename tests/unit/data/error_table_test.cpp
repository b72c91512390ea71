#include "ferrowind/data/error_table.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ferrowind {
namespace {

TEST(ErrorTable, HoldsTheTwelveMessages) {
  ErrorTable table;
  FillErrorTable(table);
  std::vector<std::string> messages;
  for (const auto& entry : table) messages.push_back(entry.message);
  EXPECT_EQ(messages,
            (std::vector<std::string>{
                "Can't add holiday to database", "Can't remove holiday", "Can't load holidays from database",
                "Can't load holiday types from database", "Can't load first weekday", "Can't load currency",
                "Can't load relation currency to calendars", "Can't edit multi rows",
                "Can't define correction holiday type", "Can't define correction weekday",
                "There is duplicate holiday name", "Can't restore holiday"}));
}

TEST(ErrorTable, GivesEveryMessageTheTitleErrorAndTheFlagZero) {
  ErrorTable table;
  FillErrorTable(table);
  for (const auto& entry : table) {
    EXPECT_EQ(entry.title, "Error");
    EXPECT_EQ(entry.flag, 0);
  }
}

TEST(ErrorTable, NamesThePositionsByWhatTheyAreFor) {
  ErrorTable table;
  FillErrorTable(table);
  const auto message_at = [&](std::int32_t index) { return table[static_cast<std::size_t>(index)].message; };
  EXPECT_EQ(message_at(error_index::kCannotAddHoliday), "Can't add holiday to database");
  EXPECT_EQ(message_at(error_index::kCannotRemoveHoliday), "Can't remove holiday");
  EXPECT_EQ(message_at(error_index::kCannotLoadHolidays), "Can't load holidays from database");
  EXPECT_EQ(message_at(error_index::kCannotLoadHolidayTypes), "Can't load holiday types from database");
  EXPECT_EQ(message_at(error_index::kCannotLoadFirstWeekday), "Can't load first weekday");
  EXPECT_EQ(message_at(error_index::kCannotLoadCurrency), "Can't load currency");
  EXPECT_EQ(message_at(error_index::kCannotLoadCalendars), "Can't load relation currency to calendars");
  EXPECT_EQ(message_at(error_index::kCannotEditMultiRows), "Can't edit multi rows");
  EXPECT_EQ(message_at(error_index::kCannotDefineHolidayType), "Can't define correction holiday type");
  EXPECT_EQ(message_at(error_index::kCannotDefineWeekday), "Can't define correction weekday");
  EXPECT_EQ(message_at(error_index::kDuplicateHolidayName), "There is duplicate holiday name");
  EXPECT_EQ(message_at(error_index::kCannotRestoreHoliday), "Can't restore holiday");
}

}  // namespace
}  // namespace ferrowind
