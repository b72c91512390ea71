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

TEST_F(GridSelectionContract, KeepsItsLastRowWhenThatIsToggled) {
  grid.SetMultiSelect(true);
  under_test->ClickRow(grid, 4, kLeftButton);
  under_test->ToggleRow(grid, 4);
  EXPECT_THAT(grid.SelectedRows(), ElementsAre(4));
}

TEST_F(GridSelectionContract, LeavesARowCurrentThatIsToggledOutOfIt) {
  grid.SetMultiSelect(true);
  under_test->ClickRow(grid, 4, kLeftButton);
  under_test->ToggleRow(grid, 1);
  under_test->ToggleRow(grid, 1);
  EXPECT_EQ(grid.CurrentRow(), 1);
  EXPECT_THAT(grid.SelectedRows(), ElementsAre(4));
}

TEST_F(GridSelectionContract, TakesTheRowsUpToOneThatIsClickedWithShift) {
  grid.SetMultiSelect(true);
  under_test->ClickRow(grid, 2, kLeftButton);
  under_test->ExtendToRow(grid, 4);
  EXPECT_THAT(grid.SelectedRows(), ElementsAre(2, 3, 4));
  under_test->ExtendToRow(grid, 3);
  EXPECT_THAT(grid.SelectedRows(), ElementsAre(2, 3));
}

TEST_F(GridSelectionContract, KeepsWhatWasToggledBeforeARange) {
  grid.SetMultiSelect(true);
  under_test->ClickRow(grid, 5, kLeftButton);
  under_test->ToggleRow(grid, 1);
  under_test->ExtendToRow(grid, 2);
  EXPECT_THAT(grid.SelectedRows(), ElementsAre(5, 1, 2));
}

TEST_F(GridSelectionContract, StaysUnderAMenuThatIsAskedForInIt) {
  grid.SetMultiSelect(true);
  under_test->ClickRow(grid, 2, kLeftButton);
  under_test->ExtendToRow(grid, 4);
  under_test->ClickRow(grid, 3, platform::kRightButton);
  EXPECT_EQ(grid.CurrentRow(), 3);
  EXPECT_THAT(grid.SelectedRows(), ElementsAre(2, 3, 4));
}

TEST_F(GridSelectionContract, IsOneRowWithoutMultipleSelectionWhateverIsClickedWithShift) {
  under_test->ClickRow(grid, 2, kLeftButton);
  under_test->ExtendToRow(grid, 4);
  EXPECT_THAT(grid.SelectedRows(), ElementsAre(4));
  EXPECT_THAT(grid.MarkedRows(), ElementsAre(4));
}

TEST_F(GridSelectionContract, IsWhatIsMarkedToBeCopiedFromTheTop) {
  grid.SetMultiSelect(true);
  under_test->ClickRow(grid, 4, kLeftButton);
  under_test->ToggleRow(grid, 1);
  EXPECT_THAT(grid.MarkedRows(), ElementsAre(1, 4));
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

/// A grid whose design lets the operator mark ranges.
class GridRangesContract : public ToolkitContract {
 protected:
  GridRangesContract() {
    platform::GridColumn& type = grid.AddColumn("Type", 0, 1, "Type");
    type.SetBoundField("TID1");
    type.SetGroupable(1);
    std::vector<std::vector<Value>> rows;
    for (int i = 0; i < 5; ++i) rows.push_back({i % 2});
    grid.HoldColumns();
    grid.AttachRecords(std::make_shared<platform::RecordSet>(std::vector<std::string>{"TID1"}, rows));
    grid.Rebind();
  }
  platform::Grid& grid = The<platform::Grid>("gexRanges");
};

TEST_F(GridRangesContract, AreMarkedWithShiftAndLeaveTheCurrentRowTheOnlySelectedOne) {
  under_test->ClickRow(grid, 2, kLeftButton);
  under_test->ExtendToRow(grid, 4);
  EXPECT_FALSE(grid.MultiSelect());
  EXPECT_THAT(grid.MarkedRows(), ElementsAre(2, 3, 4));
  EXPECT_EQ(grid.CurrentRow(), 4);
  EXPECT_THAT(grid.SelectedRows(), ElementsAre(4));
}

TEST_F(GridRangesContract, EndWithAClickOfAnyKind) {
  under_test->ClickRow(grid, 2, kLeftButton);
  under_test->ExtendToRow(grid, 4);
  under_test->ClickRow(grid, 3, kLeftButton);
  EXPECT_THAT(grid.MarkedRows(), ElementsAre(3));
  under_test->ExtendToRow(grid, 5);
  under_test->ToggleRow(grid, 1);
  EXPECT_THAT(grid.MarkedRows(), ElementsAre(1)) << "rows far apart are no range";
}

TEST_F(GridRangesContract, StayUnderTheMenuOfARowInThem) {
  under_test->ClickRow(grid, 2, kLeftButton);
  under_test->ExtendToRow(grid, 4);
  under_test->ClickRow(grid, 3, platform::kRightButton);
  EXPECT_EQ(grid.CurrentRow(), 3);
  EXPECT_THAT(grid.MarkedRows(), ElementsAre(2, 3, 4));
  under_test->ClickRow(grid, 5, platform::kRightButton);
  EXPECT_THAT(grid.MarkedRows(), ElementsAre(5));
}

TEST_F(GridRangesContract, EndWhenTheProgramMakesAnotherRowCurrent) {
  under_test->ClickRow(grid, 2, kLeftButton);
  under_test->ExtendToRow(grid, 4);
  grid.SetCurrentRow(1);
  EXPECT_THAT(grid.MarkedRows(), ElementsAre(1));
  grid.SetCurrentRow(0);
  EXPECT_THAT(grid.MarkedRows(), IsEmpty());
}

TEST_F(GridRangesContract, BeginWhereTheProgramWentLast) {
  under_test->ClickRow(grid, 1, kLeftButton);
  grid.SetCurrentRow(3);
  under_test->ExtendToRow(grid, 4);
  EXPECT_THAT(grid.MarkedRows(), ElementsAre(3, 4));
}

TEST_F(GridRangesContract, EndWithMultipleSelection) {
  grid.SetMultiSelect(true);
  under_test->ClickRow(grid, 2, kLeftButton);
  under_test->ToggleRow(grid, 4);
  EXPECT_THAT(grid.MarkedRows(), ElementsAre(2, 4));
  grid.SetMultiSelect(false);
  EXPECT_THAT(grid.MarkedRows(), ElementsAre(4));
}

TEST_F(GridRangesContract, AreDroppedWithTheRecordSet) {
  under_test->ClickRow(grid, 2, kLeftButton);
  under_test->ExtendToRow(grid, 4);
  grid.AttachRecords(grid.Records()->Clone());
  EXPECT_THAT(grid.MarkedRows(), IsEmpty());
}

TEST_F(GridRangesContract, LeaveGroupRowsOut) {
  grid.GroupKeys().Add(1, kSortAscending, 0);
  grid.Refresh(true);
  under_test->ClickRow(grid, 1, kLeftButton);
  under_test->ExtendToRow(grid, 6);
  EXPECT_THAT(grid.MarkedRows(), ElementsAre(2, 3, 4, 6));
}

}  // namespace
}  // namespace ferrowind::contract
