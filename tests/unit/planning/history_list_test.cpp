#include "ferrowind/planning/history_list.h"

#include <gmock/gmock.h>

#include "tests/support/recording_action_observer.h"
#include "tests/unit/planning/memory_world.h"

namespace ferrowind::planning {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::RunInFreshThread;
using ::testing::SizeIs;

std::vector<std::string> Sentences(const HistoryList& list) {
  std::vector<std::string> sentences;
  for (const auto& line : list.Lines()) sentences.push_back(line.told.Sentence());
  return sentences;
}

/// A calendar with Good Friday by anna, which is the entry 4.
void PrepareEuro(MemoryWorld& component) {
  component.AddSundayAndGoodFriday();
  component.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2028}});
  component.ActAs("anna");
  component.AssignGoodFriday();
  component.ActAs("memory");
}

TEST(HistoryList, TellsEveryCallTheNewestFirst) {
  RunInFreshThread([] {
    MemoryWorld component;
    PrepareEuro(component);
    HistoryList list;
    list.Show({}, false);
    EXPECT_THAT(Sentences(list),
                ElementsAre("Assigned Good Friday to Friday 14 April 2028", "Created the calendar EUR 2028",
                            "Added the rule Good Friday", "Added the rule Sunday"));
    EXPECT_EQ(list.Lines()[0].calendar, "EUR 2028");
    EXPECT_EQ(list.Lines()[3].calendar, "");
    EXPECT_EQ(list.Find(4), &list.Lines()[0]);
    EXPECT_EQ(list.Find(5), nullptr);
  });
}

TEST(HistoryList, ShowsOneCalendarADayOrOnesOwn) {
  RunInFreshThread([] {
    MemoryWorld component;
    PrepareEuro(component);
    HistoryList list;
    list.Show({978, 2028}, false);
    EXPECT_THAT(list.Lines(), SizeIs(2));
    list.Show({978, 2028, 1}, false);
    EXPECT_THAT(Sentences(list), ElementsAre("Created the calendar EUR 2028"));
    list.Show({978, 2028}, true);
    EXPECT_THAT(Sentences(list), ElementsAre("Created the calendar EUR 2028"));
    list.Show({}, true);
    EXPECT_THAT(list.Lines(), SizeIs(3));
  });
}

TEST(HistoryList, GoesOnInPages) {
  RunInFreshThread([] {
    MemoryWorld component;
    for (int i = 0; i < 150; ++i) {
      component.Call("CldIUCelebrate", {{"Name1", "Rule " + std::to_string(i)}, {"TID1", 2}, {"WD", 1}});
    }
    HistoryList list;
    list.Show({}, false);
    EXPECT_THAT(list.Lines(), SizeIs(100));
    EXPECT_TRUE(list.HasOlder());
    list.ShowOlder();
    EXPECT_THAT(list.Lines(), SizeIs(150));
    EXPECT_FALSE(list.HasOlder());
    EXPECT_EQ(list.Lines().back().entry.id, 1);
    list.Reload();
    EXPECT_THAT(list.Lines(), SizeIs(150));
    EXPECT_EQ(list.Lines().front().entry.id, 150);
  });
}

TEST(HistoryList, UndoesAndRedoes) {
  RunInFreshThread([] {
    MemoryWorld component;
    PrepareEuro(component);
    HistoryList list;
    list.Show({978, 2028}, false);
    const auto undo = list.StepOf(*list.Find(4));
    ASSERT_TRUE(undo);
    EXPECT_EQ(undo->kind, UndoStep::Kind::kUndo);
    EXPECT_EQ(list.Do(*undo), "");
    list.Reload();
    EXPECT_THAT(Sentences(list),
                ElementsAre("Undid: Assigned Good Friday to Friday 14 April 2028",
                            "Assigned Good Friday to Friday 14 April 2028", "Created the calendar EUR 2028"));
    EXPECT_TRUE(list.IsUndone(*list.Find(4)));
    const auto redo = list.StepOf(*list.Find(4));
    ASSERT_TRUE(redo);
    EXPECT_EQ(redo->kind, UndoStep::Kind::kRedo);
    EXPECT_EQ(list.Do(*redo), "");
    list.Reload();
    EXPECT_EQ(Sentences(list).front(), "Redid: Assigned Good Friday to Friday 14 April 2028");
    EXPECT_FALSE(list.IsUndone(*list.Find(4)));
  });
}

TEST(HistoryList, KnowsOfOnesOwnWhatOthersHaveUndone) {
  RunInFreshThread([] {
    MemoryWorld component;
    PrepareEuro(component);
    component.AssignGoodFriday();
    component.Call("CldUndo", {{"EntryID", 4}});
    component.ActAs("anna");
    HistoryList list;
    list.Show({978, 2028}, true);
    ASSERT_THAT(Sentences(list), ElementsAre("Assigned Good Friday to Friday 14 April 2028"));
    EXPECT_TRUE(list.IsUndone(list.Lines()[0]));
    EXPECT_EQ(list.StepOf(list.Lines()[0])->kind, UndoStep::Kind::kRedo);
  });
}

TEST(HistoryList, OffersNothingForACallThatLeftEverythingAsItWas) {
  RunInFreshThread([] {
    MemoryWorld component;
    PrepareEuro(component);
    component.AssignGoodFriday();
    HistoryList list;
    list.Show({}, false);
    EXPECT_FALSE(list.StepOf(*list.Find(5)));
  });
}

TEST(HistoryList, TellsWhyNothingWasUndone) {
  RunInFreshThread([] {
    MemoryWorld component;
    PrepareEuro(component);
    component.Call(
        "CldIUMain",
        {{"ID1", 978}, {"Year1", 2028}, {"TID1", 1}, {"ID2", 1}, {"Day1", 105}, {"Comment", "Audit"}});
    HistoryList list;
    list.Show({978, 2028}, false);
    const std::string why = list.Do(*list.StepOf(*list.Find(4)));
    EXPECT_THAT(why, HasSubstr("This cannot be undone: a later change is of the same, or"));
    EXPECT_THAT(
        why,
        HasSubstr("The newest change of EUR 2028 is \"Excepted Friday 14 April 2028: Audit\" (memory, "));
    EXPECT_THAT(why, HasSubstr("). Undo that first."));
    EXPECT_EQ(list.Do({UndoStep::Kind::kUndo, 4711}), "The history has no entry 4711.");
  });
}

TEST(HistoryList, TellsThatAChangeIsUndoneAlreadyAndByWhom) {
  RunInFreshThread([] {
    MemoryWorld component;
    PrepareEuro(component);
    HistoryList list;
    list.Show({978, 2028}, false);
    const UndoStep step = *list.StepOf(*list.Find(4));
    component.ActAs("anna");
    ASSERT_EQ(list.Do(step), "");
    EXPECT_THAT(list.Do(step), ::testing::MatchesRegex("That is undone already .anna, .*"));
  });
}

TEST(HistoryList, TellsTheHostThatAChangeIsUndone) {
  RunInFreshThread([] {
    testing::RecordingActionObserver observer;
    MemoryWorld component(&observer);
    PrepareEuro(component);
    HistoryList list;
    list.Show({978, 2028}, false);
    ASSERT_EQ(list.Do(*list.StepOf(*list.Find(4))), "");
    EXPECT_THAT(observer.events, ElementsAre("began undo EUR 2028", "write 0", "ended"));
  });
}

TEST(HistoryList, StaysAsItWasWhenItCannotBeRead) {
  RunInFreshThread([] {
    MemoryWorld component;
    PrepareEuro(component);
    HistoryList list;
    list.Show({978, 2028}, false);
    component.world.faults.FailAtCall(1);
    EXPECT_THROW(list.Show({}, true), platform::Failure);
    EXPECT_THAT(list.Lines(), SizeIs(2));
    list.Reload();
    EXPECT_THAT(list.Lines(), SizeIs(2));
  });
}

}  // namespace
}  // namespace ferrowind::planning
