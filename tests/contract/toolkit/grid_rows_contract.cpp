#include "tests/contract/toolkit/grid_contract.h"

namespace ferrowind::contract {
namespace {

using platform::kLeftButton;
using platform::kSortAscending;
using platform::kSortDescending;
using platform::kSortNone;
using platform::Subscription;
using platform::Value;
using testing::ElementsAre;
using testing::IsEmpty;
namespace failure_number = platform::failure_number;

class GridRowsContract : public GridContract {};

TEST_F(GridRowsContract, AreNoneWithoutARecordSet) {
  EXPECT_EQ(grid.Records(), nullptr);
  EXPECT_EQ(grid.RowCount(), 0);
  EXPECT_EQ(grid.CurrentRow(), 0);
  EXPECT_EQ(grid.FirstVisibleRow(), 0);
  EXPECT_THAT(grid.SelectedRows(), IsEmpty());
}

TEST_F(GridRowsContract, AreTheRecordsInTheirOrder) {
  const auto records = SampleRecords();
  Attach(records);
  EXPECT_EQ(grid.Records(), records);
  EXPECT_THAT(Bookmarks(), ElementsAre(1, 2, 3, 4, 5));
  EXPECT_EQ(grid.FirstVisibleRow(), 1);
  EXPECT_EQ(grid.CurrentRow(), 0);
}

TEST_F(GridRowsContract, AreTheRecordsThatPassTheFilterOfTheMoment) {
  const auto records = SampleRecords();
  records->SetFilter("TID1 <> 1");
  Attach(records);
  EXPECT_THAT(Bookmarks(), ElementsAre(1, 3, 5));
  records->SetFilter("");
  grid.Refresh(true);
  EXPECT_THAT(Bookmarks(), ElementsAre(1, 3, 5));
}

TEST_F(GridRowsContract, LeaveTheCursorOfTheRecordSetAlone) {
  const auto records = SampleRecords();
  records->MoveNext();
  Attach(records);
  grid.SortKeys().Add(2, kSortAscending, 0);
  grid.Refresh(true);
  grid.SetCurrentRow(4);
  under_test->ClickRow(grid, 3, kLeftButton);
  static_cast<void>(grid.CellValue(5, "Name"));
  EXPECT_EQ(records->CurrentBookmark(), 2);
}

TEST_F(GridRowsContract, AreGoneWithTheRecordSet) {
  ShowSample();
  grid.SetCurrentRow(2);
  grid.HoldColumns();
  grid.AttachRecords(nullptr);
  EXPECT_EQ(grid.Records(), nullptr);
  EXPECT_EQ(grid.RowCount(), 0);
  EXPECT_EQ(grid.CurrentRow(), 0);
  EXPECT_THAT(grid.SelectedRows(), IsEmpty());
}

TEST_F(GridRowsContract, HaveValuesByColumn) {
  ShowSample();
  EXPECT_EQ(grid.CellValue(1, "Type"), Value(2));
  EXPECT_EQ(grid.CellValue(1, "date"), Value(platform::Date(2026, 1, 4)));
  EXPECT_EQ(grid.CellValue(3, "Name"), Value());
  ExpectFailure(failure_number::kElementNotFound, "Nowhere",
                [&] { static_cast<void>(grid.CellValue(1, "Nowhere")); });
}

TEST_F(GridRowsContract, AreEmptyInAColumnWhoseFieldIsMissing) {
  static_cast<void>(AddColumn("Other", "NoSuchField"));
  ShowSample();
  EXPECT_EQ(grid.CellValue(1, "Other"), Value());
  EXPECT_EQ(under_test->CellText(grid, 1, "Other"), "");
}

TEST_F(GridRowsContract, HaveABookmarkOfNoneAtRowZero) {
  ShowSample();
  EXPECT_EQ(grid.RowBookmark(0), 0);
}

TEST_F(GridRowsContract, RefuseRowsAndColumnsThatAreNotThere) {
  ShowSample();
  grid.SetCurrentRow(2);
  grid.SetCurrentColumn(3);
  for (const int row : {-1, 6}) {
    ExpectFailure(failure_number::kSubscriptOutOfRange, "", [&] { grid.SetCurrentRow(row); });
    ExpectFailure(failure_number::kSubscriptOutOfRange, "", [&] { grid.SetFirstVisibleRow(row); });
  }
  for (const int column : {-1, 4}) {
    ExpectFailure(failure_number::kSubscriptOutOfRange, "", [&] { grid.SetCurrentColumn(column); });
  }
  EXPECT_EQ(grid.CurrentRow(), 2);
  EXPECT_EQ(grid.CurrentColumn(), 3);
}

TEST_F(GridRowsContract, CanHaveNoCurrentOneAgain) {
  ShowSample();
  grid.SetCurrentRow(2);
  grid.SetCurrentRow(0);
  EXPECT_EQ(grid.CurrentRow(), 0);
}

TEST_F(GridRowsContract, TellWhenAnotherOneBecomesCurrent) {
  ShowSample();
  const Subscription changed =
      grid.OnCurrentRowChange([&] { notes.push_back(std::to_string(grid.CurrentRow())); });
  grid.SetCurrentRow(2);
  grid.SetCurrentRow(2);
  under_test->ClickRow(grid, 4, kLeftButton);
  EXPECT_THAT(notes, ElementsAre("2", "4"));
}

TEST_F(GridRowsContract, TellWhenTheCurrentOneGoesWithItsRecordSet) {
  ShowSample();
  grid.SetCurrentRow(2);
  const Subscription changed =
      grid.OnCurrentRowChange([&] { notes.push_back(std::to_string(grid.CurrentRow())); });
  Attach(SampleRecords());
  EXPECT_EQ(grid.CurrentRow(), 0);
  EXPECT_THAT(notes, ElementsAre("0"));
}

TEST_F(GridRowsContract, AreSortedByOneKey) {
  ShowSample();
  grid.SortKeys().Add(IndexOf("Date"), kSortAscending, 0);
  grid.Refresh(true);
  EXPECT_THAT(Bookmarks(), ElementsAre(4, 2, 5, 1, 3));
  grid.SortKeys().Clear();
  grid.SortKeys().Add(IndexOf("Date"), kSortDescending, 0);
  grid.Refresh(true);
  EXPECT_THAT(Bookmarks(), ElementsAre(3, 1, 5, 2, 4));
}

TEST_F(GridRowsContract, KeepTheirOrderWhereAKeyFindsThemEqual) {
  ShowSample();
  grid.SortKeys().Add(IndexOf("Type"), kSortAscending, 0);
  grid.Refresh(true);
  EXPECT_THAT(Bookmarks(), ElementsAre(2, 4, 1, 5, 3));
  grid.SortKeys().Clear();
  grid.SortKeys().Add(IndexOf("Type"), kSortDescending, 0);
  grid.Refresh(true);
  EXPECT_THAT(Bookmarks(), ElementsAre(3, 1, 5, 2, 4));
}

TEST_F(GridRowsContract, AreSortedByTheFirstKeyFirst) {
  ShowSample();
  grid.SortKeys().Add(IndexOf("Name"), kSortDescending, 0);
  grid.SortKeys().Add(IndexOf("Type"), kSortAscending, 1);
  grid.Refresh(true);
  EXPECT_THAT(Bookmarks(), ElementsAre(2, 4, 1, 5, 3));
}

TEST_F(GridRowsContract, ComeBackToTheRecordsOrderWithoutAKey) {
  ShowSample();
  grid.SortKeys().Add(IndexOf("Date"), kSortAscending, 0);
  grid.Refresh(true);
  grid.SortKeys().Clear();
  grid.Refresh(true);
  EXPECT_THAT(Bookmarks(), ElementsAre(1, 2, 3, 4, 5));
}

TEST_F(GridRowsContract, AreNotSortedByAKeyWithoutAnOrder) {
  ShowSample();
  grid.SortKeys().Add(IndexOf("Date"), kSortNone, 0);
  grid.Refresh(true);
  EXPECT_THAT(Bookmarks(), ElementsAre(1, 2, 3, 4, 5));
}

TEST_F(GridRowsContract, AreSortedWithEmptyCellsFirst) {
  ShowSample();
  grid.SortKeys().Add(IndexOf("Name"), kSortAscending, 0);
  grid.Refresh(true);
  EXPECT_THAT(Bookmarks(), ElementsAre(3, 4, 2, 5, 1));
}

TEST_F(GridRowsContract, StayCurrentByTheirRecord) {
  ShowSample();
  grid.SetCurrentRow(1);
  const Subscription changed = grid.OnCurrentRowChange(Note("change"));
  grid.SortKeys().Add(IndexOf("Date"), kSortAscending, 0);
  grid.Refresh(true);
  EXPECT_EQ(grid.CurrentRow(), 4);
  EXPECT_EQ(grid.RowBookmark(4), 1);
}

TEST_F(GridRowsContract, CanBeTheFirstVisibleOne) {
  std::vector<std::vector<Value>> many;
  for (int i = 0; i < 500; ++i) many.push_back({i, {}, {}});
  Attach(std::make_shared<platform::RecordSet>(std::vector<std::string>{"TID1", "ODate", "Name1"}, many));
  grid.SetFirstVisibleRow(200);
  EXPECT_EQ(grid.FirstVisibleRow(), 200);
  grid.Rebind();
  EXPECT_EQ(grid.FirstVisibleRow(), 1);
}

TEST_F(GridRowsContract, OfAnEmptyRecordSetAreNone) {
  Attach(std::make_shared<platform::RecordSet>(std::vector<std::string>{"TID1"},
                                               std::vector<std::vector<Value>>{}));
  EXPECT_EQ(grid.RowCount(), 0);
  EXPECT_EQ(grid.FirstVisibleRow(), 0);
  grid.GroupKeys().Add(1, kSortAscending, 0);
  EXPECT_NO_THROW(grid.Refresh(true));
  EXPECT_EQ(grid.RowCount(), 0);
}

class GridSelectionContract : public GridContract {
 protected:
  GridSelectionContract() { ShowSample(); }
};

TEST_F(GridSelectionContract, IsTheCurrentRowWithoutMultipleSelection) {
  EXPECT_FALSE(grid.MultiSelect());
  grid.SetCurrentRow(3);
  EXPECT_THAT(grid.SelectedRows(), ElementsAre(3));
  under_test->ClickRow(grid, 2, kLeftButton);
  EXPECT_THAT(grid.SelectedRows(), ElementsAre(2));
}

TEST_F(GridSelectionContract, KeepsTheOrderInWhichRowsWereSelected) {
  grid.SetMultiSelect(true);
  EXPECT_TRUE(grid.MultiSelect());
  under_test->ClickRow(grid, 4, kLeftButton);
  under_test->ToggleRow(grid, 1);
  under_test->ToggleRow(grid, 3);
  EXPECT_THAT(grid.SelectedRows(), ElementsAre(4, 1, 3));
}

TEST_F(GridSelectionContract, LosesARowThatIsToggledAgain) {
  grid.SetMultiSelect(true);
  under_test->ClickRow(grid, 4, kLeftButton);
  under_test->ToggleRow(grid, 1);
  under_test->ToggleRow(grid, 4);
  EXPECT_THAT(grid.SelectedRows(), ElementsAre(1));
}

TEST_F(GridSelectionContract, IsOneRowAfterAPlainClick) {
  grid.SetMultiSelect(true);
  under_test->ClickRow(grid, 4, kLeftButton);
  under_test->ToggleRow(grid, 1);
  under_test->ClickRow(grid, 5, kLeftButton);
  EXPECT_THAT(grid.SelectedRows(), ElementsAre(5));
}

TEST_F(GridSelectionContract, IsDroppedWithTheRecordSet) {
  grid.SetMultiSelect(true);
  under_test->ClickRow(grid, 4, kLeftButton);
  under_test->ToggleRow(grid, 1);
  Attach(SampleRecords());
  EXPECT_THAT(grid.SelectedRows(), IsEmpty());
}

TEST_F(GridSelectionContract, StaysWithTheRecordsThroughASort) {
  grid.SetMultiSelect(true);
  under_test->ClickRow(grid, 4, kLeftButton);
  under_test->ToggleRow(grid, 1);
  grid.SortKeys().Add(IndexOf("Date"), kSortAscending, 0);
  grid.Refresh(true);
  EXPECT_THAT(grid.SelectedRows(), ElementsAre(1, 4));
}

TEST_F(GridSelectionContract, LeavesGroupRowsOut) {
  grid.GroupKeys().Add(IndexOf("Type"), kSortAscending, 0);
  grid.Refresh(true);
  grid.SetCurrentRow(1);
  EXPECT_THAT(grid.SelectedRows(), IsEmpty());
}

}  // namespace
}  // namespace ferrowind::contract
