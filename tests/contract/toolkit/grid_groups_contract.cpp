#include "tests/contract/toolkit/grid_contract.h"

namespace ferrowind::contract {
namespace {

using platform::kLeftButton;
using platform::kRightButton;
using platform::kSortAscending;
using platform::kSortDescending;
using platform::Subscription;
using platform::Value;
using testing::ElementsAre;
using testing::IsEmpty;

class GridGroupsContract : public GridContract {
 protected:
  GridGroupsContract() { ShowSample(); }
  void GroupBy(const std::string& key, std::int32_t order) {
    grid.GroupKeys().Add(IndexOf(key), order, 0);
    grid.Refresh(true);
  }
};

TEST_F(GridGroupsContract, StandAboveTheirRecords) {
  GroupBy("Type", kSortAscending);
  EXPECT_THAT(Bookmarks(), ElementsAre(0, 2, 4, 0, 1, 5, 0, 3));
}

TEST_F(GridGroupsContract, AreOrderedAsTheirKeySays) {
  GroupBy("Type", kSortDescending);
  EXPECT_THAT(Bookmarks(), ElementsAre(0, 3, 0, 1, 5, 0, 2, 4));
}

TEST_F(GridGroupsContract, HaveEmptyCellsAndNoBookmark) {
  GroupBy("Type", kSortAscending);
  EXPECT_EQ(grid.RowBookmark(1), 0);
  EXPECT_EQ(grid.CellValue(1, "Type"), Value());
  EXPECT_EQ(grid.CellValue(2, "Type"), Value(1));
}

TEST_F(GridGroupsContract, SortTheirRecords) {
  grid.SortKeys().Add(IndexOf("Date"), kSortAscending, 0);
  GroupBy("Type", kSortAscending);
  EXPECT_THAT(Bookmarks(), ElementsAre(0, 4, 2, 0, 5, 1, 0, 3));
}

TEST_F(GridGroupsContract, StandInOneAnother) {
  GroupBy("Type", kSortAscending);
  GroupBy("Name", kSortAscending);
  EXPECT_THAT(Bookmarks(), ElementsAre(0, 0, 4, 0, 2, 0, 0, 5, 0, 1, 0, 0, 3));
}

TEST_F(GridGroupsContract, HideTheirRecordsWhenCollapsed) {
  GroupBy("Type", kSortAscending);
  grid.CollapseAllGroups();
  EXPECT_THAT(Bookmarks(), ElementsAre(0, 0, 0));
  grid.ExpandAllGroups();
  EXPECT_THAT(Bookmarks(), ElementsAre(0, 2, 4, 0, 1, 5, 0, 3));
}

TEST_F(GridGroupsContract, AreCollapsedAndExpandedByTheOperator) {
  GroupBy("Type", kSortAscending);
  under_test->ToggleGroup(grid, 4);
  EXPECT_THAT(Bookmarks(), ElementsAre(0, 2, 4, 0, 0, 3));
  under_test->ToggleGroup(grid, 4);
  EXPECT_THAT(Bookmarks(), ElementsAre(0, 2, 4, 0, 1, 5, 0, 3));
}

TEST_F(GridGroupsContract, StayCollapsedThroughASortAndAReload) {
  GroupBy("Type", kSortAscending);
  under_test->ToggleGroup(grid, 4);
  grid.SortKeys().Add(IndexOf("Date"), kSortAscending, 0);
  grid.Refresh(true);
  EXPECT_THAT(Bookmarks(), ElementsAre(0, 4, 2, 0, 0, 3));
  Attach(SampleRecords());
  GroupBy("Type", kSortAscending);
  EXPECT_THAT(Bookmarks(), ElementsAre(0, 2, 4, 0, 0, 3));
}

TEST_F(GridGroupsContract, AreExpandedWithAllLevelsWhenSelected) {
  GroupBy("Type", kSortAscending);
  GroupBy("Name", kSortAscending);
  grid.CollapseAllGroups();
  EXPECT_THAT(Bookmarks(), ElementsAre(0, 0, 0));
  grid.SetCurrentRow(2);
  grid.ExpandSelection();
  EXPECT_THAT(Bookmarks(), ElementsAre(0, 0, 0, 5, 0, 1, 0));
}

TEST_F(GridGroupsContract, ExpandNothingWithoutASelection) {
  GroupBy("Type", kSortAscending);
  grid.CollapseAllGroups();
  grid.SetCurrentRow(0);
  grid.ExpandSelection();
  EXPECT_THAT(Bookmarks(), ElementsAre(0, 0, 0));
}

TEST_F(GridGroupsContract, AreNotThereWithoutAKey) {
  EXPECT_NO_THROW(grid.ExpandAllGroups());
  EXPECT_NO_THROW(grid.CollapseAllGroups());
  EXPECT_NO_THROW(grid.ExpandSelection());
  EXPECT_THAT(Bookmarks(), ElementsAre(1, 2, 3, 4, 5));
}

TEST_F(GridGroupsContract, KeepTheCurrentRecord) {
  grid.SetCurrentRow(3);
  GroupBy("Type", kSortAscending);
  EXPECT_EQ(grid.CurrentRow(), 8);
  EXPECT_EQ(grid.RowBookmark(8), 3);
}

TEST_F(GridGroupsContract, HaveABoxThatIsHiddenAtFirst) {
  EXPECT_FALSE(grid.GroupByBoxVisible());
  grid.SetGroupByBoxVisible(true);
  EXPECT_TRUE(grid.GroupByBoxVisible());
  grid.SetGroupByBoxVisible(false);
  EXPECT_FALSE(grid.GroupByBoxVisible());
}

TEST_F(GridGroupsContract, TellBeforeAndAfterTheOperatorChangesThem) {
  grid.SetGroupByBoxVisible(true);
  const auto note_count = [&](const std::string& what) {
    return [this, what] { notes.push_back(what + " " + std::to_string(grid.GroupKeys().Count())); };
  };
  const Subscription before = grid.OnBeforeGroupChange(note_count("before"));
  const Subscription after = grid.OnAfterGroupChange(note_count("after"));
  under_test->DragHeaderToGroups(grid, "Type");
  EXPECT_THAT(notes, ElementsAre("before 0", "after 1"));
  EXPECT_EQ(grid.GroupKeys().Item(1)->ColIndex, IndexOf("Type"));
  notes.clear();
  under_test->DragGroupAway(grid, 1);
  EXPECT_THAT(notes, ElementsAre("before 1", "after 0"));
}

TEST_F(GridGroupsContract, TellWhenTheOperatorShowsOrHidesTheirBoxAndNotWhenTheProgramDoes) {
  const Subscription changed = grid.OnGroupByBoxChange(
      [this](bool visible) { notes.push_back(visible && grid.GroupByBoxVisible() ? "shown" : "hidden"); });
  under_test->ToggleGroupByBox(grid);
  EXPECT_THAT(notes, ElementsAre("shown"));
  under_test->ToggleGroupByBox(grid);
  EXPECT_THAT(notes, ElementsAre("shown", "hidden"));
  EXPECT_FALSE(grid.GroupByBoxVisible());
  grid.SetGroupByBoxVisible(true);
  EXPECT_EQ(notes.size(), 2U);
}

TEST_F(GridGroupsContract, TellNothingWhenTheProgramChangesThem) {
  const Subscription before = grid.OnBeforeGroupChange(Note("before"));
  const Subscription after = grid.OnAfterGroupChange(Note("after"));
  GroupBy("Type", kSortAscending);
  grid.GroupKeys().Clear();
  grid.Refresh(true);
  EXPECT_THAT(notes, IsEmpty());
}

class GridEventsContract : public GridContract {
 protected:
  GridEventsContract() { ShowSample(); }
};

TEST_F(GridEventsContract, TellWhichHeaderWasClicked) {
  const Subscription clicked =
      grid.OnHeaderClick([&](platform::GridColumn& column) { notes.push_back(column.Key()); });
  under_test->ClickHeader(grid, "Date");
  under_test->ClickHeader(grid, "Type");
  EXPECT_THAT(notes, ElementsAre("Date", "Type"));
}

TEST_F(GridEventsContract, LeaveSortingToTheHandlerOfTheHeader) {
  const Subscription clicked = grid.OnHeaderClick([](platform::GridColumn&) {});
  under_test->ClickHeader(grid, "Date");
  EXPECT_EQ(grid.SortKeys().Count(), 0);
  EXPECT_THAT(Bookmarks(), ElementsAre(1, 2, 3, 4, 5));
}

TEST_F(GridEventsContract, TellWhichMouseButtonWasReleasedOverTheRows) {
  const Subscription released =
      grid.OnMouseUp([&](std::int32_t button) { notes.push_back(std::to_string(button)); });
  under_test->ClickRow(grid, 2, kLeftButton);
  under_test->ClickRow(grid, 3, kRightButton);
  EXPECT_THAT(notes, ElementsAre("1", "2"));
}

TEST_F(GridEventsContract, MakeARowCurrentBeforeTheButtonIsReleased) {
  std::vector<std::int32_t> rows;
  const Subscription released = grid.OnMouseUp([&](std::int32_t) { rows.push_back(grid.CurrentRow()); });
  under_test->ClickRow(grid, 2, kLeftButton);
  under_test->ClickRow(grid, 3, kRightButton);
  EXPECT_THAT(rows, ElementsAre(2, 3));
}

TEST_F(GridEventsContract, CallNoHandlerWhoseSubscriptionWasDropped) {
  grid.SetGroupByBoxVisible(true);
  grid.OnHeaderClick([&](platform::GridColumn&) { notes.push_back("header"); }).Reset();
  grid.OnMouseUp([&](std::int32_t) { notes.push_back("mouse"); }).Reset();
  grid.OnCurrentRowChange(Note("row")).Reset();
  grid.OnBeforeGroupChange(Note("before")).Reset();
  grid.OnAfterGroupChange(Note("after")).Reset();
  under_test->ClickHeader(grid, "Date");
  under_test->ClickRow(grid, 2, kLeftButton);
  under_test->DragHeaderToGroups(grid, "Type");
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(GridEventsContract, LetAHandlerRefillTheGrid) {
  const Subscription released = grid.OnMouseUp([&](std::int32_t) { Attach(SampleRecords()); });
  under_test->ClickRow(grid, 5, kLeftButton);
  EXPECT_EQ(grid.RowCount(), 5);
  EXPECT_EQ(grid.CurrentRow(), 0);
}

}  // namespace
}  // namespace ferrowind::contract
