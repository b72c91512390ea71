#include "tests/contract/toolkit/toolkit_contract.h"

namespace ferrowind::contract {
namespace {

using platform::Subscription;
using platform::Tree;
using testing::ElementsAre;
using testing::IsEmpty;
namespace failure_number = platform::failure_number;

class TreeContract : public ToolkitContract {
 protected:
  TreeContract() {
    tree.AddRoot({"K978", "EUR", "Currency"});
    tree.AddRoot({"K840", "USD", "Currency"});
    tree.AddChild("K978", {"K978_2026", "2026", "Calendar"});
    tree.AddChild("K978", {"K978_2027", "2027", "Calendar"});
    tree.AddChild("K840", {"K840_2026", "2026", "Calendar"});
  }
  /// Notes all three events.
  [[nodiscard]] std::vector<Subscription> NoteEverything() {
    std::vector<Subscription> subscriptions;
    subscriptions.push_back(tree.OnNodeClick(NoteKey("click")));
    subscriptions.push_back(tree.OnExpanded(NoteKey("expanded")));
    subscriptions.push_back(tree.OnCollapsed(NoteKey("collapsed")));
    return subscriptions;
  }

  Tree& tree = The<Tree>("tvNodes");
};

TEST_F(TreeContract, KeepsNodesInTheOrderOfAdding) {
  EXPECT_EQ(tree.Count(), 5);
  EXPECT_EQ(tree.First(), "K978");
  EXPECT_EQ(tree.NextSibling("K978"), "K840");
  EXPECT_EQ(tree.NextSibling("K840"), std::nullopt);
  EXPECT_EQ(tree.NextSibling("K978_2026"), "K978_2027");
  EXPECT_EQ(tree.NextSibling("K978_2027"), std::nullopt);
}

TEST_F(TreeContract, KnowsTextsAndParents) {
  EXPECT_EQ(tree.Text("K978"), "EUR");
  EXPECT_EQ(tree.Text("K978_2027"), "2027");
  EXPECT_EQ(tree.Parent("K978"), std::nullopt);
  EXPECT_EQ(tree.Parent("K978_2027"), "K978");
}

TEST_F(TreeContract, TellsWhatANodeStandsForWhereItWasToldSo) {
  tree.AddRoot({"K756", "CHF", "Currency", "Swiss franc"});
  tree.AddChild("K756", {"K756_2026", "2026", "Calendar", "Swiss franc, 2026"});
  EXPECT_EQ(tree.Description("K756"), "Swiss franc");
  EXPECT_EQ(tree.Description("K756_2026"), "Swiss franc, 2026");
  EXPECT_EQ(tree.Description("K978"), "");
}

TEST_F(TreeContract, IsEmptyAfterClear) {
  tree.Select("K978_2026");
  const auto subscriptions = NoteEverything();
  tree.Clear();
  EXPECT_EQ(tree.Count(), 0);
  EXPECT_EQ(tree.First(), std::nullopt);
  EXPECT_EQ(tree.Selected(), std::nullopt);
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(TreeContract, TakesTheSameKeysAgainAfterClear) {
  tree.Clear();
  tree.AddRoot({"K978", "EUR", "Currency"});
  EXPECT_EQ(tree.Count(), 1);
  EXPECT_FALSE(tree.Expanded("K978"));
}

TEST_F(TreeContract, RefusesAKeyInUseAndNamesIt) {
  ExpectFailure(failure_number::kKeyNotUnique, "K978", [&] { tree.AddRoot({"K978", "again", ""}); });
  ExpectFailure(failure_number::kKeyNotUnique, "K840_2026", [&] {
    tree.AddChild("K978", {"K840_2026", "again", ""});
  });
  EXPECT_EQ(tree.Count(), 5);
  EXPECT_EQ(tree.Text("K978"), "EUR");
  EXPECT_EQ(tree.Parent("K840_2026"), "K840");
}

TEST_F(TreeContract, TellsKeysApartByLetterCase) {
  tree.AddRoot({"k978", "another", ""});
  EXPECT_EQ(tree.Text("k978"), "another");
  EXPECT_EQ(tree.Text("K978"), "EUR");
}

TEST_F(TreeContract, TakesAnUnknownImage) { EXPECT_NO_THROW(tree.AddRoot({"K1", "one", "NoSuchImage"})); }

TEST_F(TreeContract, NamesAKeyOfNoNode) {
  const std::string key = "K1_1999";
  const auto expect = [&](const std::function<void()>& call) {
    ExpectFailure(failure_number::kElementNotFound, key, call);
  };
  expect([&] { tree.AddChild(key, {"K2", "two", ""}); });
  expect([&] { static_cast<void>(tree.Text(key)); });
  expect([&] { static_cast<void>(tree.Description(key)); });
  expect([&] { static_cast<void>(tree.Parent(key)); });
  expect([&] { static_cast<void>(tree.NextSibling(key)); });
  expect([&] { static_cast<void>(tree.Expanded(key)); });
  expect([&] { tree.SetExpanded(key, true); });
  expect([&] { tree.Select(key); });
  EXPECT_EQ(tree.Count(), 5);
}

TEST_F(TreeContract, KeepsItsSelectionWhenAnUnknownNodeIsToBeSelected) {
  tree.Select("K840");
  ExpectFailure(failure_number::kElementNotFound, "K1", [&] { tree.Select("K1"); });
  EXPECT_EQ(tree.Selected(), "K840");
}

TEST_F(TreeContract, HasNothingSelectedOrExpandedAtFirst) {
  EXPECT_EQ(tree.Selected(), std::nullopt);
  EXPECT_FALSE(tree.Expanded("K978"));
}

TEST_F(TreeContract, ClicksNothingWhenTheProgramSelects) {
  const Subscription clicked = tree.OnNodeClick(NoteKey("click"));
  tree.Select("K840");
  EXPECT_EQ(tree.Selected(), "K840");
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(TreeContract, ExpandsTheParentsOfTheNodeThatIsSelected) {
  const auto subscriptions = NoteEverything();
  tree.Select("K978_2027");
  EXPECT_EQ(tree.Selected(), "K978_2027");
  EXPECT_TRUE(tree.Expanded("K978"));
  EXPECT_FALSE(tree.Expanded("K840"));
  EXPECT_THAT(notes, ElementsAre("expanded K978"));
}

TEST_F(TreeContract, TellsOfExpansionByTheProgramWhenItChanges) {
  const auto subscriptions = NoteEverything();
  tree.SetExpanded("K978", true);
  tree.SetExpanded("K978", true);
  tree.SetExpanded("K978", false);
  tree.SetExpanded("K978", false);
  EXPECT_THAT(notes, ElementsAre("expanded K978", "collapsed K978"));
}

TEST_F(TreeContract, TellsOfExpansionByTheOperator) {
  const auto subscriptions = NoteEverything();
  under_test->ToggleNode(tree, "K978");
  EXPECT_TRUE(tree.Expanded("K978"));
  under_test->ToggleNode(tree, "K978");
  EXPECT_FALSE(tree.Expanded("K978"));
  EXPECT_THAT(notes, ElementsAre("expanded K978", "collapsed K978"));
}

TEST_F(TreeContract, SelectsANodeBeforeItTellsOfTheClick) {
  std::optional<std::string> selected;
  const Subscription clicked = tree.OnNodeClick([&](const std::string& key) {
    notes.push_back(key);
    selected = tree.Selected();
  });
  under_test->ClickNode(tree, "K840");
  EXPECT_THAT(notes, ElementsAre("K840"));
  EXPECT_EQ(selected, "K840");
}

TEST_F(TreeContract, SelectsTheNodeThatHidesTheSelectedOne) {
  tree.Select("K978_2027");
  const auto subscriptions = NoteEverything();
  under_test->ToggleNode(tree, "K978");
  EXPECT_EQ(tree.Selected(), "K978");
  EXPECT_THAT(notes, ElementsAre("collapsed K978"));
}

TEST_F(TreeContract, KeepsTheSelectionWhenAnotherNodeIsCollapsed) {
  tree.Select("K840_2026");
  tree.SetExpanded("K978", true);
  tree.SetExpanded("K978", false);
  EXPECT_EQ(tree.Selected(), "K840_2026");
}

TEST_F(TreeContract, CallsNoHandlerWhoseSubscriptionWasDropped) {
  { const auto subscriptions = NoteEverything(); }
  under_test->ClickNode(tree, "K840");
  under_test->ToggleNode(tree, "K978");
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(TreeContract, MayBeClearedByItsHandler) {
  const Subscription clicked = tree.OnNodeClick([&](const std::string& key) {
    tree.Clear();
    notes.push_back(key);
  });
  under_test->ClickNode(tree, "K840");
  EXPECT_EQ(tree.Count(), 0);
  EXPECT_THAT(notes, ElementsAre("K840"));
}

}  // namespace
}  // namespace ferrowind::contract
