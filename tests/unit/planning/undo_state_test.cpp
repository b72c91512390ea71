#include "ferrowind/planning/undo_state.h"

#include <gmock/gmock.h>

#include "tests/unit/planning/memory_world.h"

namespace ferrowind::planning {
namespace {

using testing::RunInFreshThread;

void CreateEuro2028(MemoryWorld& component) { component.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2028}}); }

void Undo(MemoryWorld& component, int entry) {
  ASSERT_EQ(component.Call("CldUndo", {{"EntryID", entry}}), 0);
}

/// The sentence and the entry of the own last change of EUR 2028.
std::pair<std::string, int> OwnLast() {
  const auto currencies = CurrencyList::Load();
  const HistoryWords words(currencies, [](std::int32_t id) -> std::optional<HistoryEntry> {
    const auto found = LoadEntry(id);
    if (!found) return std::nullopt;
    return found->entry;
  });
  const auto own = LoadOwnLastChange(978, 2028, words);
  if (!own) return {"", 0};
  return {own->told.change, own->entry.id};
}

class UndoSteps : public ::testing::Test {
 protected:
  /// Entry 1, and each other one undoes the one before.
  explicit UndoSteps(int entries = 1) {
    for (int id = 2; id <= entries; ++id) AddUndo(id, id - 1);
  }
  void AddUndo(int id, int undone) {
    HistoryEntry entry;
    entry.id = id;
    entry.procedure = "CldUndo";
    entry.parameters = R"({"EntryID" : )" + std::to_string(undone) + "}";
    state_.Add(entry);
  }
  [[nodiscard]] std::pair<UndoStep::Kind, int> Step(int entry, int turns) const {
    const auto step = state_.StepOf(entry, {1, "", turns});
    return {step.kind, step.entry};
  }

  static constexpr auto kUndo = UndoStep::Kind::kUndo;
  static constexpr auto kRedo = UndoStep::Kind::kRedo;
  UndoState state_;
};

TEST_F(UndoSteps, UndoAChangeInForce) {
  EXPECT_EQ(Step(1, 0), (std::pair{kUndo, 1}));
  EXPECT_FALSE(state_.IsUndone(1));
}

TEST_F(UndoSteps, RedoWhatIsUndoneFromBothItsEntries) {
  AddUndo(2, 1);
  EXPECT_TRUE(state_.IsUndone(1));
  EXPECT_EQ(Step(1, 0), (std::pair{kRedo, 2}));
  EXPECT_EQ(Step(2, 1), (std::pair{kRedo, 2}));
}

TEST_F(UndoSteps, UndoWhatIsRedone) {
  AddUndo(3, 2);
  AddUndo(2, 1);
  EXPECT_FALSE(state_.IsUndone(1));
  EXPECT_TRUE(state_.IsUndone(2));
  EXPECT_EQ(Step(1, 0), (std::pair{kUndo, 1}));
  EXPECT_EQ(Step(2, 1), (std::pair{kUndo, 3}));
  EXPECT_EQ(Step(3, 2), (std::pair{kUndo, 3}));
}

TEST_F(UndoSteps, RedoWhatIsUndoneTwice) {
  AddUndo(2, 1);
  AddUndo(3, 2);
  AddUndo(4, 1);
  EXPECT_EQ(Step(1, 0), (std::pair{kRedo, 4}));
  EXPECT_EQ(Step(4, 1), (std::pair{kRedo, 4}));
}

TEST(OwnLastChange, IsTheNewestOneInForce) {
  RunInFreshThread([] {
    MemoryWorld component;
    EXPECT_EQ(OwnLast().second, 0);
    component.AddSundayAndGoodFriday();
    CreateEuro2028(component);
    component.AssignGoodFriday();
    EXPECT_EQ(OwnLast(), (std::pair{std::string("Assigned Good Friday to Friday 14 April 2028"), 4}));
    Undo(component, 4);
    EXPECT_EQ(OwnLast(), (std::pair{std::string("Created the calendar EUR 2028"), 3}));
    Undo(component, 5);
    EXPECT_EQ(OwnLast(), (std::pair{std::string("Assigned Good Friday to Friday 14 April 2028"), 6}));
    Undo(component, 6);
    Undo(component, 3);
    EXPECT_EQ(OwnLast().second, 0);
  });
}

TEST(OwnLastChange, IsNeitherAnothersNorOfAnotherCalendar) {
  RunInFreshThread([] {
    MemoryWorld component;
    component.AddSundayAndGoodFriday();
    CreateEuro2028(component);
    component.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2029}});
    component.ActAs("anna");
    component.AssignGoodFriday();
    EXPECT_EQ(OwnLast().second, 5);
    component.ActAs("memory");
    EXPECT_EQ(OwnLast().second, 3);
    // It has that rule already.
    component.AssignGoodFriday();
    EXPECT_EQ(OwnLast().second, 3);
  });
}

TEST(OwnLastChange, IsNoneThatSomebodyElseHasUndone) {
  RunInFreshThread([] {
    MemoryWorld component;
    component.AddSundayAndGoodFriday();
    CreateEuro2028(component);
    component.AssignGoodFriday();
    EXPECT_EQ(OwnLast().second, 4);
    component.ActAs("anna");
    Undo(component, 4);
    component.ActAs("memory");
    EXPECT_EQ(OwnLast().second, 3);
  });
}

TEST(OwnLastChange, IsFoundBehindManyOfOthers) {
  RunInFreshThread([] {
    MemoryWorld component;
    component.AddSundayAndGoodFriday();
    CreateEuro2028(component);
    component.ActAs("anna");
    for (int i = 0; i < 120; ++i) component.AssignGoodFriday();
    component.ActAs("memory");
    EXPECT_EQ(OwnLast().second, 3);
  });
}

}  // namespace
}  // namespace ferrowind::planning
