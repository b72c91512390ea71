#include "ferrowind/planning/entry_changes.h"

#include <gmock/gmock.h>

#include "ferrowind/planning/history_words.h"

#include "tests/unit/planning/memory_world.h"
#include "tests/unit/planning/planning_world.h"

namespace ferrowind::planning {
namespace {

using platform::Date;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::RunInFreshThread;
using ::testing::SizeIs;

/// "what | before | behind", a line for each.
std::vector<std::string> Lines(const EntryChanges& changes) {
  std::vector<std::string> lines;
  for (const auto& change : changes.changes) {
    lines.push_back(change.what + " | " + change.before + " | " + change.behind);
  }
  return lines;
}

std::vector<std::string> ChangesOf(int entry) {
  return Lines(LoadChanges(LoadEntry(entry).value().entry, CurrencyList::Load()));
}

TEST(EntryChanges, TellADayBeforeAndBehind) {
  RunInFreshThread([] {
    MemoryWorld component;
    component.AddSundayAndGoodFriday();
    component.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2028}});
    component.AssignGoodFriday();
    component.Call(
        "CldIUMain",
        {{"ID1", 978}, {"Year1", 2028}, {"TID1", 1}, {"ID2", 1}, {"Day1", 105}, {"Comment", "Audit\nday"}});
    component.Call("CldUndo", {{"EntryID", 5}});
    EXPECT_THAT(ChangesOf(4), ElementsAre("Friday 14 April 2028 | Working day | Good Friday"));
    EXPECT_THAT(ChangesOf(5), ElementsAre("Friday 14 April 2028 | Good Friday | "
                                          "Working day by exception: Audit day"));
    EXPECT_THAT(ChangesOf(6), ElementsAre("Friday 14 April 2028 | Working day by exception: Audit day | "
                                          "Good Friday"));
  });
}

TEST(EntryChanges, TellACalendarWithItsMarkedDaysComingAndGoing) {
  RunInFreshThread([] {
    MemoryWorld component;
    component.Call("CldApplyPlan",
                   {{"ID1", 978},
                    {"Year1", 2028},
                    {"Expected", ""},
                    {"Days", R"([{"Name1": "A", "TID1": 3, "Dates": ["2028-01-05", "2028-01-06"]}])"}});
    component.Call("CldUndo", {{"EntryID", 1}});
    EXPECT_THAT(ChangesOf(1),
                ElementsAre("Rule A: name |  | A", "Rule A: type |  | celebration",
                            "Rule A: date |  | 5 January 2028", "Calendar EUR 2028 |  | 366 days",
                            "Wednesday 5 January 2028 |  | A", "Thursday 6 January 2028 |  | A"));
    EXPECT_THAT(ChangesOf(2),
                ElementsAre("Rule A: name | A | ", "Rule A: type | celebration | ",
                            "Rule A: date | 5 January 2028 | ", "Calendar EUR 2028 | 366 days | ",
                            "Wednesday 5 January 2028 | A | ", "Thursday 6 January 2028 | A | "));
  });
}

TEST(EntryChanges, TellWhatOfARuleIsAnother) {
  RunInFreshThread([] {
    MemoryWorld component;
    component.AddSundayAndGoodFriday();
    component.Call("CldIUCelebrate",
                   {{"ID2", 2}, {"Name1", "Rest"}, {"Comment", "c"}, {"TID1", 2}, {"WD", 7}});
    component.Call("CldIUCelebrate", {{"ID2", 2}, {"Del", 2}});
    EXPECT_THAT(ChangesOf(3),
                ElementsAre("Rule Sunday: name | Sunday | Rest", "Rule Sunday: weekday | Sunday | Saturday",
                            "Rule Sunday: comment |  | c"));
    EXPECT_THAT(ChangesOf(4), ElementsAre("Rule Rest: removed |  | yes"));
  });
}

TEST(EntryChanges, CountTheWeekdaysOfRulesFromTheFirstDay) {
  RunInFreshThread([] {
    MemoryWorld component;
    component.world.database->Tables().first_day = 2;
    component.Call("CldIUCelebrate", {{"Name1", "Rest"}, {"TID1", 2}, {"WD", 7}});
    EXPECT_EQ(ChangesOf(1).back(), "Rule Rest: weekday |  | Sunday");
  });
}

TEST(EntryChanges, TellWhatOfABookIsAnother) {
  RunInFreshThread([] {
    MemoryWorld component;
    component.Call("CldIUBook", {{"ID1", 978},
                                 {"Expected", ""},
                                 {"Publisher", "ECB"},
                                 {"Document", "Days"},
                                 {"Rules", R"([{"Name1": "A", "TID1": 4, "Expression": "easter-2"}])"},
                                 {"FromYear", 2015}});
    EXPECT_THAT(ChangesOf(1),
                ElementsAre("Rule book of EUR: publisher |  | ECB", "Rule book of EUR: document |  | Days",
                            "Rule book of EUR: since |  | 2015", "Rule book of EUR, rule 1: name |  | A",
                            "Rule book of EUR, rule 1: type |  | holiday point",
                            "Rule book of EUR, rule 1: dates |  | easter-2"));
  });
}

TEST(EntryChanges, TellWhatOfACurrencyIsAnother) {
  RunInFreshThread([] {
    MemoryWorld component;
    const auto set = [&](const Value& last_day) {
      component.Call("CldIUCurrency", {{"CcyID", 978},
                                       {"Ccy", "EUR"},
                                       {"CcyType", std::int16_t{0}},
                                       {"Name", "Euro"},
                                       {"LastDay", last_day}});
    };
    set({});
    set(Date(2031, 6, 30));
    EXPECT_THAT(ChangesOf(2), ElementsAre("Currency EUR: last day as money |  | Monday 30 June 2031"));
  });
}

/// The answer of the history, of an entry of the calendar EUR 2028 that replaced `rows`; none without rows.
void AnswerEntry(PlanningWorld& component, const Rows& rows) {
  Rows entries;
  if (!rows.empty())
    entries.push_back({4, "2028-01-01T00:00:00.000Z", "anna", "CldIUMain", 978, 2028, "{}", 1, {}, 1});
  component.world.commands.Answer("CldGetHistory")
      .Takes("@EntryID", ParameterType::kInt32)
      .Gives({"EntryID", "Moment", "UserName", "ProcedureName", "ID1", "Year1", "Parameters", "RowsChanged",
              "Name1", "KeepsRows"},
             entries)
      .Gives({"UserName"}, {})
      .Gives({"TableName", "ID1", "ID2", "Position", "OldRow", "NewRow"}, rows);
}

ProcedureScript& AnswerPast(PlanningWorld& component) {
  return component.world.commands.Answer("CldGetAsOf")
      .Takes("@ID1", ParameterType::kInt32)
      .Takes("@Year1", ParameterType::kInt32)
      .Takes("@EntryID", ParameterType::kInt32);
}

TEST(EntryChanges, TellDaysThatADamagedDatabaseHasOnOneSideAlone) {
  RunInFreshThread([] {
    PlanningWorld component;
    AnswerEntry(component, {});
    const std::vector<std::string> fields = {"ODate", "TID1", "Name1", "Comment", "ID2"};
    const std::vector<Value> first = {Date(2028, 1, 1), 4, "New Year", {}, 2};
    const std::vector<Value> second = {Date(2028, 1, 2), 1, {}, {}, {}};
    AnswerPast(component).Gives(fields, {first, second});
    AnswerPast(component).Gives(fields, {second});
    HistoryEntry entry;
    entry.id = 4;
    entry.currency = 978;
    entry.year = 2028;
    EXPECT_THAT(Lines(LoadChanges(entry, CurrencyList({}))),
                ElementsAre("Saturday 1 January 2028 | New Year | "));
  });
}

TEST(EntryChanges, TellTextsOfSeveralLinesInOne) {
  RunInFreshThread([] {
    PlanningWorld component;
    AnswerEntry(component, {{"CldHoliday", {}, 2, {}, R"({"Name1": "A"})", R"({"Name1": "B\n\u001b[2J"})"}});
    HistoryEntry entry;
    entry.id = 4;
    EXPECT_THAT(Lines(LoadChanges(entry, CurrencyList({}))), ElementsAre("Rule A: name | A | B  [2J"));
  });
}

TEST(EntryChanges, SayThatTheHistoryDoesNotReachThere) {
  RunInFreshThread([] {
    PlanningWorld component;
    AnswerEntry(component, {});
    AnswerPast(component).Returns(9);
    HistoryEntry entry;
    entry.id = 4;
    entry.currency = 978;
    entry.year = 2028;
    const auto changes = LoadChanges(entry, CurrencyList({}));
    EXPECT_THAT(changes.changes, IsEmpty());
    EXPECT_EQ(changes.remark,
              "The history does not keep what was there before: the call is older than its upgrade.");
    const auto calls = component.world.commands.CallsOf("CldGetAsOf");
    ASSERT_THAT(calls, SizeIs(2));
    EXPECT_EQ(calls[0].Parameter("@EntryID"), Value(3));
    EXPECT_EQ(calls[1].Parameter("@EntryID"), Value(4));
  });
}

}  // namespace
}  // namespace ferrowind::planning
