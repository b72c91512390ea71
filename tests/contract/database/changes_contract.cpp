// What CldGetHistory gives.

#include <gmock/gmock.h>

#include "ferrowind/platform/values/conversion.h"

#include "tests/contract/database/procedures_contract.h"

namespace ferrowind::contract {
namespace {

using platform::Date;
using platform::Value;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;
using ::testing::SizeIs;

constexpr const char* kException = R"([{"TID1": 1, "Dates": ["2028-02-29"], "DayComment": "why"}])";

std::vector<std::string> TextsOf(const platform::RecordSet& record_set, const std::string& field) {
  std::vector<std::string> texts;
  for (const auto& value : ColumnOf(record_set, field)) texts.push_back(platform::ToTextOrEmpty(value));
  return texts;
}

TEST_P(ProceduresContract, TheHistoryHasTheNewestEntryFirst) {
  EXPECT_THAT(RowsOf(*caller().Call("CldGetHistory").record_sets.at(0)), IsEmpty());
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  AddWeekdayRule("Sunday", 1);
  ASSERT_EQ(caller().Return("CldIUMain", {{"ID1", kEuro}, {"Year1", 2028}, {"TID1", 2}, {"ID2", 2}}), 0);
  ASSERT_EQ(Undo(LastEntry()), 0);
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 6);
  const auto history = caller().Call("CldGetHistory").record_sets.at(0);
  EXPECT_THAT(TextsOf(*history, "EntryID"), ElementsAre("4", "3", "2", "1"));
  EXPECT_THAT(TextsOf(*history, "ProcedureName"),
              ElementsAre("CldUndo", "CldIUMain", "CldIUCelebrate", "CldIUMain"));
  EXPECT_THAT(TextsOf(*history, "RowsChanged"), ElementsAre("53", "53", "1", "367"));
  EXPECT_THAT(TextsOf(*history, "ID1"), ElementsAre("978", "978", "", "978"));
  EXPECT_THAT(TextsOf(*history, "Year1"), ElementsAre("2028", "2028", "", "2028"));
  EXPECT_THAT(TextsOf(*history, "Parameters").at(0), R"({"EntryID" : 3})");
  EXPECT_THAT(TextsOf(*history, "Parameters").at(2), HasSubstr(R"({"Name1" : "Sunday", )"));
  for (const auto& moment : TextsOf(*history, "Moment")) {
    EXPECT_THAT(moment, MatchesRegex("....-..-..T..:..:......Z"));
  }
  EXPECT_THAT(TextsOf(*history, "UserName").at(0), ::testing::Not(IsEmpty()));
}

TEST_P(ProceduresContract, TheHistoryOfACalendarAndOfACurrencyIsFound) {
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  ASSERT_EQ(CreateCalendar(kDollar, 2028), 0);
  ASSERT_EQ(CreateCalendar(kEuro, 2029), 0);
  ASSERT_EQ(StoreBook(kEuro, "[]"), 0);
  ASSERT_EQ(Undo(4), 0);
  AddWeekdayRule("Sunday", 1);
  const auto entries = [&](const Arguments& arguments) {
    return TextsOf(*caller().Call("CldGetHistory", arguments).record_sets.at(0), "EntryID");
  };
  EXPECT_THAT(entries({{"ID1", kEuro}, {"Year1", 2028}}), ElementsAre("1"));
  EXPECT_THAT(entries({{"ID1", kEuro}}), ElementsAre("5", "4", "3", "1"));
  EXPECT_THAT(entries({{"Year1", 2028}}), ElementsAre("2", "1"));
  EXPECT_THAT(entries({{"ID1", kNoCurrency}}), IsEmpty());
  EXPECT_THAT(entries({}), ElementsAre("6", "5", "4", "3", "2", "1"));
}

TEST_P(ProceduresContract, TheHistoryOfADayHasTheCallsThatChangedItAndMadeItsCalendar) {
  ASSERT_EQ(Apply(kEuro, 2028, kException), 0);
  ASSERT_EQ(Apply(kEuro, 2028, R"([{"TID1": 1, "Dates": ["2028-03-01"], "DayComment": "why"}])"), 0);
  ASSERT_EQ(Apply(kEuro, 2028, R"([{"TID1": 1, "Dates": ["2028-02-29"], "DayComment": "another"}])"), 0);
  ASSERT_EQ(Apply(kDollar, 2028, kException), 0);
  ASSERT_EQ(Undo(3), 0);
  const auto entries = [&](int currency, int year, int day) {
    return TextsOf(*caller()
                        .Call("CldGetHistory", {{"ID1", currency}, {"Year1", year}, {"Day1", day}})
                        .record_sets.at(0),
                   "EntryID");
  };
  EXPECT_THAT(entries(kEuro, 2028, 60), ElementsAre("5", "3", "1"));
  EXPECT_THAT(entries(kEuro, 2028, 61), ElementsAre("2", "1"));
  EXPECT_THAT(entries(kEuro, 2028, 1), ElementsAre("1"));
  EXPECT_THAT(entries(kDollar, 2028, 60), ElementsAre("4"));
  EXPECT_THAT(entries(kEuro, 2029, 60), IsEmpty());
}

TEST_P(ProceduresContract, TheHistoryIsGivenInPages) {
  for (int year = 2000; year < 2110; ++year) ASSERT_EQ(CreateCalendar(kEuro, year), 0);
  const auto entries = [&](const Arguments& arguments) {
    return TextsOf(*caller().Call("CldGetHistory", arguments).record_sets.at(0), "EntryID");
  };
  EXPECT_THAT(entries({}), SizeIs(100));
  EXPECT_THAT(entries({{"Count", 10000}}), SizeIs(110));
  EXPECT_THAT(entries({{"Count", 2}}), ElementsAre("110", "109"));
  EXPECT_THAT(entries({{"Before", 109}, {"Count", 2}}), ElementsAre("108", "107"));
  EXPECT_THAT(entries({{"Before", 2}}), ElementsAre("1"));
  EXPECT_THAT(entries({{"Before", 1}}), IsEmpty());
  EXPECT_THAT(entries({{"Year1", 2003}, {"Before", 5}}), ElementsAre("4"));
  EXPECT_THAT(entries({{"Year1", 2003}, {"Before", 4}}), IsEmpty());
}

TEST_P(ProceduresContract, AHistoryIsRefusedForValuesOutOfRange) {
  for (const Arguments& arguments :
       {Arguments{{"Count", 0}}, Arguments{{"Count", -1}}, Arguments{{"Count", 10001}},
        Arguments{{"Day1", 60}}, Arguments{{"Day1", 60}, {"ID1", kEuro}},
        Arguments{{"Day1", 60}, {"Year1", 2028}}}) {
    EXPECT_EQ(caller().Return("CldGetHistory", arguments), 7);
  }
}

}  // namespace
}  // namespace ferrowind::contract
