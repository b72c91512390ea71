#include "ferrowind/adapters/grid_engine/group_tree.h"

#include <random>

#include <gtest/gtest.h>

namespace ferrowind::grid_engine {
namespace {

/// The visible rows told by walking all groups, each as level and number, or a position.
void Walk(const GroupTree& tree, GroupId group, std::vector<VisibleRow>& rows) {
  rows.push_back({true, group, 0});
  if (!tree.IsExpanded(group)) return;
  if (group.level + 1 < tree.LevelCount()) {
    const auto children = tree.ChildrenOf(group);
    for (std::uint32_t child = children.first; child < children.end; ++child)
      Walk(tree, {group.level + 1, child}, rows);
    return;
  }
  const auto positions = tree.PositionsOf(group);
  for (std::uint32_t position = positions.first; position < positions.end; ++position) {
    rows.push_back({false, {}, position});
  }
}

void ExpectRowsAsWalked(const GroupTree& tree) {
  std::vector<VisibleRow> rows;
  for (std::uint32_t number = 0; number < tree.GroupCount(0); ++number) Walk(tree, {0, number}, rows);
  ASSERT_EQ(tree.RowCount(), rows.size());
  for (std::uint32_t row = 0; row < rows.size(); ++row) {
    const VisibleRow found = tree.RowAt(row);
    ASSERT_EQ(found.is_group, rows[row].is_group) << "row " << row;
    if (found.is_group) {
      ASSERT_EQ(found.group, rows[row].group) << "row " << row;
      ASSERT_EQ(tree.RowOf(found.group), row);
    } else {
      ASSERT_EQ(found.position, rows[row].position) << "row " << row;
      ASSERT_EQ(tree.RowOfPosition(found.position), row);
    }
  }
}

class GroupTreeTest : public ::testing::Test {
 protected:
  GroupTreeTest() : tree_(order_, {&months_, &types_}) {}

  const std::vector<Record> order_{4, 2, 0, 1, 3, 5};
  // By record; in the sort order they read 1 1 1 1 2 2 and 1 1 2 3 1 1.
  const std::vector<std::uint32_t> months_{1, 1, 1, 2, 1, 2};
  const std::vector<std::uint32_t> types_{2, 3, 1, 1, 1, 1};
  GroupTree tree_;
};

TEST_F(GroupTreeTest, FindsTheGroupsOfAllLevels) {
  EXPECT_EQ(tree_.LevelCount(), 2U);
  EXPECT_EQ(tree_.GroupCount(0), 2U);
  EXPECT_EQ(tree_.GroupCount(1), 4U);
  EXPECT_EQ(tree_.PositionsOf({0, 0}).end, 4U);
  EXPECT_EQ(tree_.ChildrenOf({0, 1}).first, 3U);
  EXPECT_EQ(tree_.ParentOf({1, 2}), (GroupId{0, 0}));
  EXPECT_EQ(tree_.GroupOfPosition(4, 1), (GroupId{1, 3}));
  EXPECT_EQ(tree_.RowCount(), 12U);
  ExpectRowsAsWalked(tree_);
}

TEST_F(GroupTreeTest, HidesTheRowsOfACollapsedGroup) {
  tree_.SetExpanded({0, 0}, false);
  EXPECT_EQ(tree_.RowCount(), 5U);
  EXPECT_FALSE(tree_.RowOf({1, 0}).has_value());
  EXPECT_FALSE(tree_.RowOfPosition(0).has_value());
  EXPECT_EQ(tree_.RowOfPosition(4), 3U);
  ExpectRowsAsWalked(tree_);
}

TEST_F(GroupTreeTest, KeepsWhatWasCollapsedInsideACollapsedGroup) {
  tree_.SetExpanded({0, 0}, false);
  tree_.SetExpanded({1, 0}, false);
  EXPECT_EQ(tree_.RowCount(), 5U);
  tree_.SetExpanded({0, 0}, true);
  EXPECT_EQ(tree_.RowCount(), 10U);
  ExpectRowsAsWalked(tree_);
}

TEST_F(GroupTreeTest, CollapsesAndExpandsAll) {
  tree_.AssignAll(false);
  tree_.Recount();
  EXPECT_EQ(tree_.RowCount(), 2U);
  ExpectRowsAsWalked(tree_);
  tree_.AssignAll(true);
  tree_.Recount();
  EXPECT_EQ(tree_.RowCount(), 12U);
}

TEST(GroupTree, WithoutLevelsShowsThePositions) {
  const std::vector<Record> order{1, 0};
  const GroupTree tree(order, {});
  EXPECT_EQ(tree.RowCount(), 2U);
  EXPECT_EQ(tree.RowAt(1).position, 1U);
  EXPECT_EQ(tree.RowOfPosition(1), 1U);
}

TEST(GroupTree, OfNoRecordsHasNoRows) {
  const std::vector<std::uint32_t> none;
  const GroupTree tree({}, {&none});
  EXPECT_EQ(tree.RowCount(), 0U);
}

TEST(GroupTree, AgreesWithAWalkAfterAnySequenceOfChanges) {
  std::mt19937 random(42);
  const std::uint32_t count = 300;
  std::vector<Record> order(count);
  std::vector<std::uint32_t> levels[3];
  for (auto& level : levels) level.resize(count);
  for (std::uint32_t i = 0; i < count; ++i) {
    order[i] = i;
    levels[0][i] = i / 60;
    levels[1][i] = i / 13;
    levels[2][i] = i / 4;
  }
  GroupTree tree(order, {&levels[0], &levels[1], &levels[2]});
  for (int change = 0; change < 300; ++change) {
    const auto level = static_cast<std::uint32_t>(random() % 3);
    const auto number = static_cast<std::uint32_t>(random() % tree.GroupCount(level));
    tree.SetExpanded({level, number}, random() % 2 == 0);
    ExpectRowsAsWalked(tree);
    if (::testing::Test::HasFatalFailure()) return;
  }
}

}  // namespace
}  // namespace ferrowind::grid_engine
