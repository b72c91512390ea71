// What CldGetHistory gives.

#include <gmock/gmock.h>

#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/json_value.h"

#include "tests/contract/database/procedures_contract.h"

namespace ferrowind::contract {
namespace {

using platform::Date;
using platform::Value;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;
using ::testing::Not;
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
  EXPECT_THAT(TextsOf(*history, "UserName").at(0), Not(IsEmpty()));
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

TEST_P(ProceduresContract, TheHistoryOfAUserIsFoundAndTellsWhoAsks) {
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  const auto own = caller().Call("CldGetHistory");
  const auto asker = TextsOf(*own.record_sets.at(1), "UserName");
  ASSERT_THAT(asker, ElementsAre(Not(IsEmpty())));
  EXPECT_EQ(TextsOf(*own.record_sets.at(0), "UserName"), asker);
  const auto entries = [&](const std::string& user) {
    return TextsOf(*caller().Call("CldGetHistory", {{"UserName", user}}).record_sets.at(0), "EntryID");
  };
  EXPECT_THAT(entries(asker.front()), ElementsAre("1"));
  EXPECT_THAT(entries(asker.front() + "x"), IsEmpty());
}

TEST_P(ProceduresContract, AnEntryTellsTheNameThatItsRuleHadThen) {
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  const auto rule = AddWeekdayRule("Sunday", 1);
  const auto give = [&] {
    return caller().Return("CldIUMain", {{"ID1", kEuro}, {"Year1", 2028}, {"TID1", 2}, {"ID2", rule}});
  };
  ASSERT_EQ(give(), 0);
  ASSERT_EQ(caller().Return("CldIUCelebrate", {{"ID2", rule}, {"Name1", "Rest"}, {"TID1", 2}, {"WD", 1}}), 0);
  ASSERT_EQ(give(), 0);
  ASSERT_EQ(caller().Return("CldIUCelebrate", {{"ID2", rule}, {"Del", 2}}), 0);
  const auto history = caller().Call("CldGetHistory").record_sets.at(0);
  EXPECT_THAT(TextsOf(*history, "Name1"), ElementsAre("Rest", "Rest", "Rest", "Sunday", "", ""));
}

TEST_P(ProceduresContract, AnEntryTellsTheNameOfARuleThatIsGone) {
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  const auto gone = AddWeekdayRule("Sunday", 1);
  ASSERT_EQ(caller().Return("CldIUCelebrate", {{"ID2", gone}, {"Del", 2}}), 0);
  ASSERT_EQ(Undo(3), 0);
  ASSERT_EQ(Undo(2), 0);
  // On an engine that gives numbers again the new rule has that of the old one.
  AddWeekdayRule("Monday", 2);
  const auto history = caller().Call("CldGetHistory").record_sets.at(0);
  EXPECT_THAT(TextsOf(*history, "Name1"), ElementsAre("", "", "", "Sunday", "", ""));
}

TEST_P(ProceduresContract, AnEntryTellsWhetherItKeepsRows) {
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  ASSERT_EQ(Apply(kEuro, 2028, kException), 0);
  ASSERT_EQ(caller().Return(
                "CldIUMain",
                {{"ID1", kEuro}, {"Year1", 2028}, {"TID1", 1}, {"ID2", 1}, {"Day1", 60}, {"Comment", "why"}}),
            0);
  const auto history = caller().Call("CldGetHistory").record_sets.at(0);
  EXPECT_THAT(TextsOf(*history, "KeepsRows"), ElementsAre("0", "1", "1"));
}

/// The rows that the call of the entry replaced, but days and calendars: table, keys, before and behind.
std::vector<Row> Replaced(ProcedureCaller& caller, int entry) {
  const auto outcome = caller.Call("CldGetHistory", {{"EntryID", entry}});
  EXPECT_THAT(TextsOf(*outcome.record_sets.at(0), "EntryID"), ElementsAre(std::to_string(entry)));
  return RowsOf(*outcome.record_sets.at(2));
}

std::string MemberOf(const Row& row, std::size_t field, const char* name) {
  const auto json = platform::ReadJson(platform::ToTextOrEmpty(row.at(field)));
  if (!json || json->Find(name) == nullptr) return "none";
  return json->Find(name)->text;
}

constexpr std::size_t kBefore = 4;
constexpr std::size_t kBehind = 5;

TEST_P(ProceduresContract, AnEntryTellsTheRuleBeforeAndBehindItsCall) {
  const auto rule = AddWeekdayRule("Sunday", 1);
  ASSERT_EQ(caller().Return("CldIUCelebrate",
                            {{"ID2", rule}, {"Name1", "Rest"}, {"TID1", 2}, {"WD", 7}, {"Comment", "c"}}),
            0);
  ASSERT_EQ(caller().Return("CldIUCelebrate", {{"ID2", rule}, {"Del", 2}}), 0);
  for (int entry = 1; entry <= 3; ++entry) {
    const auto rows = Replaced(caller(), entry);
    ASSERT_THAT(rows, SizeIs(1));
    EXPECT_EQ(Row(rows[0].begin(), rows[0].begin() + kBefore), (Row{"CldHoliday", {}, rule, {}}));
    EXPECT_EQ(MemberOf(rows[0], kBefore, "Name1"), entry == 1 ? "none" : entry == 2 ? "Sunday" : "Rest");
    EXPECT_EQ(MemberOf(rows[0], kBehind, "Name1"), entry == 1 ? "Sunday" : "Rest");
    EXPECT_EQ(MemberOf(rows[0], kBehind, "WD"), entry == 1 ? "1" : "7");
    EXPECT_EQ(MemberOf(rows[0], kBehind, "Comment"), entry == 1 ? "" : "c");
    EXPECT_EQ(MemberOf(rows[0], kBehind, "Del"), entry == 3 ? "2" : "");
  }
  EXPECT_THAT(RowsOf(*caller().Call("CldGetHistory").record_sets.at(2)), IsEmpty());
  EXPECT_THAT(RowsOf(*caller().Call("CldGetHistory", {{"EntryID", 77}}).record_sets.at(0)), IsEmpty());
}

TEST_P(ProceduresContract, AnEntryTellsTheBookBeforeAndBehindItsCall) {
  ASSERT_EQ(StoreBook(kEuro, R"([{"Name1": "A", "TID1": 3, "Expression": "01-01"},
                                 {"Name1": "B", "TID1": 3, "Expression": "12-25"}])"),
            0);
  ASSERT_EQ(StoreBook(kEuro, R"([{"Name1": "A", "TID1": 3, "Expression": "01-01"},
                                 {"Name1": "B", "TID1": 3, "Expression": "12-26"}])"),
            0);
  ASSERT_EQ(StoreBook(kEuro, "[]", 2015), 0);
  const auto made = Replaced(caller(), 1);
  ASSERT_THAT(made, SizeIs(3));
  EXPECT_EQ(made[0].at(0), Value("CldBook"));
  EXPECT_EQ(made[0].at(1), Value(kEuro));
  EXPECT_EQ(made[0].at(kBefore), Value());
  EXPECT_EQ(MemberOf(made[0], kBehind, "Publisher"), "Publisher");
  EXPECT_EQ(made[2].at(3), Value(2));
  EXPECT_EQ(MemberOf(made[2], kBehind, "Expression"), "12-25");
  const auto changed = Replaced(caller(), 2);
  ASSERT_THAT(changed, SizeIs(1));
  EXPECT_EQ(Row(changed[0].begin(), changed[0].begin() + kBefore), (Row{"CldRecurrence", kEuro, {}, 2}));
  EXPECT_EQ(MemberOf(changed[0], kBefore, "Expression"), "12-25");
  EXPECT_EQ(MemberOf(changed[0], kBehind, "Expression"), "12-26");
  const auto emptied = Replaced(caller(), 3);
  ASSERT_THAT(emptied, SizeIs(3));
  EXPECT_EQ(MemberOf(emptied[0], kBefore, "FromYear"), "");
  EXPECT_EQ(MemberOf(emptied[0], kBehind, "FromYear"), "2015");
  EXPECT_EQ(emptied[1].at(kBehind), Value());
}

TEST_P(ProceduresContract, AnEntryTellsTheCurrencyBeforeAndBehindItsCall) {
  const auto store = [&](const Value& last_day) {
    return caller().Return("CldIUCurrency", {{"CcyID", kEuro},
                                             {"Ccy", "EUR"},
                                             {"CcyType", std::int16_t{0}},
                                             {"Name", "Money"},
                                             {"LastDay", last_day}});
  };
  ASSERT_EQ(store({}), 0);
  ASSERT_EQ(store(Date(2030, 12, 31)), 0);
  const auto rows = Replaced(caller(), 2);
  ASSERT_THAT(rows, SizeIs(1));
  EXPECT_EQ(Row(rows[0].begin(), rows[0].begin() + kBefore), (Row{"DicCcy", kEuro, {}, {}}));
  EXPECT_EQ(MemberOf(rows[0], kBefore, "LastDay"), "");
  EXPECT_EQ(MemberOf(rows[0], kBehind, "LastDay"), "2030-12-31");
  EXPECT_EQ(MemberOf(rows[0], kBehind, "Name"), "Money");
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
