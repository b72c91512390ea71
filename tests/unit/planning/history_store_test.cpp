#include "ferrowind/planning/history_store.h"

#include <gmock/gmock.h>

#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/history_words.h"

#include "tests/unit/planning/memory_world.h"

namespace ferrowind::planning {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::RunInFreshThread;

std::vector<int> Numbers(const HistoryPage& page) {
  std::vector<int> numbers;
  for (const auto& entry : page.entries) numbers.push_back(entry.id);
  return numbers;
}

TEST(HistoryStore, GivesPagesAndTellsWhetherThereIsMore) {
  RunInFreshThread([] {
    MemoryWorld component;
    EXPECT_THAT(LoadHistory({}, {}, 3).entries, IsEmpty());
    for (int year = 2020; year < 2025; ++year) component.Call("CldIUMain", {{"ID1", 978}, {"Year1", year}});
    const auto newest = LoadHistory({}, {}, 3);
    EXPECT_THAT(Numbers(newest), ElementsAre(5, 4, 3));
    EXPECT_TRUE(newest.has_older);
    const auto older = LoadHistory({}, 3, 3);
    EXPECT_THAT(Numbers(older), ElementsAre(2, 1));
    EXPECT_FALSE(older.has_older);
    EXPECT_FALSE(LoadHistory({}, {}, 5).has_older);
  });
}

TEST(HistoryStore, GivesAllThatAnEntryTells) {
  RunInFreshThread([] {
    MemoryWorld component;
    component.AddSundayAndGoodFriday();
    component.ActAs("anna");
    component.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2028}});
    component.ActAs("otto");
    component.AssignGoodFriday();
    const auto page = LoadHistory({}, {}, 10);
    EXPECT_EQ(page.asker, "otto");
    const HistoryEntry& entry = page.entries.front();
    EXPECT_EQ(entry.id, 4);
    EXPECT_EQ(entry.user, "otto");
    EXPECT_EQ(entry.procedure, "CldIUMain");
    EXPECT_EQ(entry.currency, 978);
    EXPECT_EQ(entry.year, 2028);
    EXPECT_EQ(entry.rows_changed, 1);
    EXPECT_EQ(entry.rule, "Good Friday");
    EXPECT_TRUE(entry.keeps_rows);
    component.AssignGoodFriday();
    EXPECT_FALSE(LoadHistory({}, {}, 1).entries.front().keeps_rows);
    EXPECT_THAT(entry.parameters, HasSubstr(R"("ODate" : "2028-04-14")"));
    EXPECT_EQ(page.entries.back().currency, std::nullopt);
    EXPECT_THAT(Numbers(LoadHistory({{}, {}, {}, "anna"}, {}, 10)), ElementsAre(3));
    EXPECT_THAT(Numbers(LoadHistory({978, 2028}, {}, 10)), ElementsAre(5, 4, 3));
    EXPECT_THAT(Numbers(LoadHistory({978, 2028, 1}, {}, 10)), ElementsAre(3));
  });
}

TEST(HistoryStore, GivesACalendarAsACallLeftIt) {
  RunInFreshThread([] {
    MemoryWorld component;
    component.AddSundayAndGoodFriday();
    component.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2028}});
    component.AssignGoodFriday();
    EXPECT_EQ(LoadCalendarBehind(978, 2028, 2).state, PastCalendar::State::kNotThere);
    const auto created = LoadCalendarBehind(978, 2028, 3);
    ASSERT_EQ(created.state, PastCalendar::State::kThere);
    ASSERT_EQ(created.days.size(), 366U);
    EXPECT_EQ(created.days[104].rule, std::nullopt);
    const auto assigned = LoadCalendarBehind(978, 2028, 4);
    EXPECT_EQ(assigned.days[104].rule, 3);
    EXPECT_EQ(assigned.days[104].name, "Good Friday");
    EXPECT_EQ(assigned.days[104].date, platform::Date(2028, 4, 14));
  });
}

TEST(HistoryStore, ReadsACalendarAsItWasAtAMoment) {
  RunInFreshThread([] {
    MemoryWorld component;
    component.AddSundayAndGoodFriday();
    component.world.database->SetMoment("2998-06-01T10:00:20.500Z");
    component.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2028}});
    component.world.database->SetMoment("2998-06-01T10:00:20.501Z");
    component.AssignGoodFriday();
    EXPECT_EQ(LoadCalendarAsOf(978, 2028, "2998-06-01T10:00:20.499Z").state, PastCalendar::State::kNotThere);
    EXPECT_EQ(LoadCalendarAsOf(978, 2028, "2998-06-01T10:00:20.500Z").days.at(104).rule, std::nullopt);
    EXPECT_EQ(LoadCalendarAsOf(978, 2028, "2998-06-01T10:00:20.501Z").days.at(104).rule, 3);
    EXPECT_THROW(static_cast<void>(LoadCalendarAsOf(978, 2028, "yesterday")), platform::Failure);
  });
}

TEST(HistoryStore, UndoesAnEntry) {
  RunInFreshThread([] {
    MemoryWorld component;
    component.AddSundayAndGoodFriday();
    component.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2028}});
    component.AssignGoodFriday();
    EXPECT_EQ(UndoEntry(LoadEntry(4).value().entry).kind, UndoOutcome::Kind::kDone);
    EXPECT_EQ(LoadCalendarBehind(978, 2028, 5).days[104].rule, std::nullopt);
  });
}

TEST(HistoryStore, TellsWhichLaterEntryMayStandAgainstUndoing) {
  RunInFreshThread([] {
    MemoryWorld component;
    component.AddSundayAndGoodFriday();
    component.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2028}});
    component.AssignGoodFriday();
    component.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2028}, {"TID1", 1}, {"ID2", 1}, {"Day1", 105}});
    const auto outcome = UndoEntry(LoadEntry(4).value().entry);
    EXPECT_EQ(outcome.kind, UndoOutcome::Kind::kRefused);
    ASSERT_TRUE(outcome.later);
    EXPECT_EQ(outcome.later->id, 5);
    EXPECT_FALSE(outcome.undoer);
    // Of a rule, which is of no calendar, it is found by the rule.
    component.Call("CldIUCelebrate", {{"ID2", 2}, {"Name1", "Rest"}, {"TID1", 2}, {"WD", 1}});
    const auto of_rule = UndoEntry(LoadEntry(1).value().entry);
    EXPECT_EQ(of_rule.kind, UndoOutcome::Kind::kRefused);
    ASSERT_TRUE(of_rule.later);
    EXPECT_EQ(of_rule.later->id, 6);
  });
}

TEST(HistoryStore, TellsWhoHasUndoneAnEntryAlready) {
  RunInFreshThread([] {
    MemoryWorld component;
    component.AddSundayAndGoodFriday();
    component.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2028}});
    component.AssignGoodFriday();
    const HistoryEntry entry = LoadEntry(4).value().entry;
    component.ActAs("anna");
    ASSERT_EQ(UndoEntry(entry).kind, UndoOutcome::Kind::kDone);
    const auto outcome = UndoEntry(entry);
    EXPECT_EQ(outcome.kind, UndoOutcome::Kind::kRefused);
    ASSERT_TRUE(outcome.undoer);
    EXPECT_EQ(outcome.undoer->id, 5);
    EXPECT_EQ(outcome.undoer->user, "anna");
    EXPECT_THAT(HistoryWords(CurrencyList::Load(), FindEntry).WhyNotUndone(entry, outcome),
                ::testing::MatchesRegex("That is undone already .anna, .*"));
  });
}

TEST(HistoryStore, TellsThatThereIsNoSuchEntry) {
  RunInFreshThread([] {
    MemoryWorld component;
    EXPECT_FALSE(LoadEntry(4711));
    HistoryEntry entry;
    entry.id = 4711;
    EXPECT_EQ(UndoEntry(entry).kind, UndoOutcome::Kind::kNoSuchEntry);
  });
}

}  // namespace
}  // namespace ferrowind::planning
