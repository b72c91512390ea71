#include "tests/contract/toolkit/grid_contract.h"

namespace ferrowind::contract {
namespace {

using platform::GridColumn;
using platform::Value;
namespace failure_number = platform::failure_number;

class GridColumnsContract : public GridContract {};

TEST_F(GridColumnsContract, AreAddedVisibleBehindTheOthersWithoutAField) {
  GridColumn& column = grid.AddColumn("New column", 0, 1, "New");
  EXPECT_EQ(column.Key(), "New");
  EXPECT_EQ(column.Caption(), "New column");
  EXPECT_EQ(column.Index(), 4);
  EXPECT_TRUE(column.Visible());
  EXPECT_EQ(column.BoundField(), "");
  EXPECT_FALSE(column.Unbound());
  EXPECT_FALSE(column.HasValueList());
  EXPECT_EQ(column.ValueList(), nullptr);
  EXPECT_EQ(column.SortOrder(), platform::kSortNone);
  EXPECT_EQ(grid.ColumnCount(), 4);
}

TEST_F(GridColumnsContract, AreFoundByKeyWhateverTheLetterCase) {
  EXPECT_EQ(&grid.ColumnByKey("dAtE"), &grid.ColumnAt(2));
  EXPECT_EQ(grid.ColumnByKey("date").Key(), "Date");
}

TEST_F(GridColumnsContract, RefuseAKeyInUseAndNameIt) {
  ExpectFailure(failure_number::kKeyNotUnique, "TYPE",
                [&] { static_cast<void>(grid.AddColumn("Again", 0, 1, "TYPE")); });
  EXPECT_EQ(grid.ColumnCount(), 3);
}

TEST_F(GridColumnsContract, RefuseAnotherTypeOrEditType) {
  ExpectFailure(failure_number::kInvalidArgument, "",
                [&] { static_cast<void>(grid.AddColumn("A", 1, 1, "A")); });
  ExpectFailure(failure_number::kInvalidArgument, "",
                [&] { static_cast<void>(grid.AddColumn("A", 0, 0, "A")); });
  ExpectFailure(failure_number::kInvalidArgument, "",
                [&] { static_cast<void>(grid.AddColumn("A", 0, 2, "A")); });
  EXPECT_EQ(grid.ColumnCount(), 3);
}

TEST_F(GridColumnsContract, NameAKeyOfNone) {
  ExpectFailure(failure_number::kElementNotFound, "Nowhere",
                [&] { static_cast<void>(grid.ColumnByKey("Nowhere")); });
}

TEST_F(GridColumnsContract, CountFromOne) {
  EXPECT_EQ(grid.ColumnAt(1).Key(), "Type");
  EXPECT_EQ(grid.ColumnAt(3).Key(), "Name");
  for (const int index : {0, -1, 4}) {
    ExpectFailure(failure_number::kSubscriptOutOfRange, "", [&] { static_cast<void>(grid.ColumnAt(index)); });
  }
}

TEST_F(GridColumnsContract, StandInTheOrderOfAddingUntilOneIsMoved) {
  using ::testing::ElementsAre;
  AddColumn("Comment", "Comment");
  EXPECT_THAT(grid.ColumnOrder(), ElementsAre("Type", "Date", "Name", "Comment"));
  grid.MoveColumnBehind("COMMENT", "type");
  EXPECT_THAT(grid.ColumnOrder(), ElementsAre("Type", "Comment", "Date", "Name"));
  grid.MoveColumnBehind("Type", "Date");
  EXPECT_THAT(grid.ColumnOrder(), ElementsAre("Comment", "Date", "Type", "Name"));
  grid.MoveColumnBehind("Type", "Date");
  grid.MoveColumnBehind("Type", "Type");
  EXPECT_THAT(grid.ColumnOrder(), ElementsAre("Comment", "Date", "Type", "Name"));
  EXPECT_EQ(grid.ColumnByKey("Comment").Index(), 4);
  EXPECT_EQ(grid.ColumnAt(1).Key(), "Type");
  ShowSample();
  EXPECT_THAT(grid.ColumnOrder(), ElementsAre("Comment", "Date", "Type", "Name"));
}

TEST_F(GridColumnsContract, LeaveTheOrderWhenTheyGo) {
  AddColumn("Comment", "Comment");
  grid.MoveColumnBehind("Comment", "Type");
  grid.AttachRecords(nullptr);
  EXPECT_THAT(grid.ColumnOrder(), ::testing::IsEmpty());
}

TEST_F(GridColumnsContract, AreMovedByKeysThatAreThere) {
  ExpectFailure(failure_number::kElementNotFound, "Nowhere",
                [&] { grid.MoveColumnBehind("Nowhere", "Type"); });
  ExpectFailure(failure_number::kElementNotFound, "Nowhere",
                [&] { grid.MoveColumnBehind("Type", "Nowhere"); });
  EXPECT_THAT(grid.ColumnOrder(), ::testing::ElementsAre("Type", "Date", "Name"));
}

TEST_F(GridColumnsContract, KeepTheirFieldWhileHidden) {
  GridColumn& column = grid.ColumnByKey("Name");
  column.SetVisible(false);
  EXPECT_FALSE(column.Visible());
  ShowSample();
  EXPECT_EQ(column.BoundField(), "Name1");
  EXPECT_EQ(grid.CellValue(1, "Name"), Value("d"));
}

TEST_F(GridColumnsContract, TakeAnotherCaption) {
  ShowSample();
  GridColumn& column = grid.ColumnByKey("Name");
  column.SetCaption("Holiday");
  EXPECT_EQ(column.Caption(), "Holiday");
  EXPECT_EQ(column.Key(), "Name");
  EXPECT_EQ(grid.CellValue(1, "Name"), Value("d"));
}

TEST_F(GridColumnsContract, SurviveARecordSetWhenHeld) {
  grid.HoldColumns();
  grid.AttachRecords(SampleRecords());
  EXPECT_EQ(grid.ColumnCount(), 3);
  EXPECT_EQ(grid.ColumnByKey("Date").BoundField(), "ODate");
}

TEST_F(GridColumnsContract, AreDroppedByARecordSetWhenNotHeld) {
  grid.AttachRecords(SampleRecords());
  EXPECT_EQ(grid.ColumnCount(), 0);
  ExpectFailure(failure_number::kElementNotFound, "Date",
                [&] { static_cast<void>(grid.ColumnByKey("Date")); });
}

TEST_F(GridColumnsContract, AreHeldForOneChangeOnly) {
  grid.HoldColumns();
  grid.AttachRecords(SampleRecords());
  grid.AttachRecords(nullptr);
  EXPECT_EQ(grid.ColumnCount(), 0);
}

TEST_F(GridColumnsContract, AddedAfterTheHoldAreDropped) {
  grid.HoldColumns();
  static_cast<void>(AddColumn("Late", "TID1"));
  grid.AttachRecords(SampleRecords());
  EXPECT_EQ(grid.ColumnCount(), 3);
}

TEST_F(GridColumnsContract, LiveAsLongAsTheGridThoughDropped) {
  GridColumn& column = grid.ColumnByKey("Date");
  grid.AttachRecords(nullptr);
  EXPECT_EQ(column.Key(), "Date");
}

TEST_F(GridColumnsContract, MayUseTheKeyOfADroppedOne) {
  grid.AttachRecords(nullptr);
  EXPECT_EQ(grid.AddColumn("Date", 0, 1, "Date").Index(), 1);
}

class GridValueListContract : public GridContract {
 protected:
  GridValueListContract() {
    type.SetHasValueList(true);
    type.ValueList()->Add(1, "Working day");
    type.ValueList()->Add(std::int16_t{2}, "Holiday");
  }
  GridColumn& type = grid.ColumnByKey("Type");
};

TEST_F(GridValueListContract, IsEmptyAtFirst) {
  GridColumn& name = grid.ColumnByKey("Name");
  name.SetHasValueList(true);
  EXPECT_TRUE(name.HasValueList());
  ASSERT_NE(name.ValueList(), nullptr);
  EXPECT_EQ(name.ValueList()->Count(), 0);
}

TEST_F(GridValueListContract, FindsTheTextOfAValueInAnyWidth) {
  EXPECT_EQ(type.ValueList()->Count(), 2);
  EXPECT_EQ(type.ValueList()->TextOf(1), "Working day");
  EXPECT_EQ(type.ValueList()->TextOf(std::int16_t{1}), "Working day");
  EXPECT_EQ(type.ValueList()->TextOf(std::int32_t{2}), "Holiday");
  EXPECT_EQ(type.ValueList()->TextOf(std::int64_t{2}), "Holiday");
}

TEST_F(GridValueListContract, NamesAValueThatItDoesNotHave) {
  ExpectFailure(failure_number::kElementNotFound, "77",
                [&] { static_cast<void>(type.ValueList()->TextOf(77)); });
}

TEST_F(GridValueListContract, TakesTheFirstOfEqualValues) {
  type.ValueList()->Add(1, "Another");
  EXPECT_EQ(type.ValueList()->Count(), 3);
  EXPECT_EQ(type.ValueList()->TextOf(1), "Working day");
}

TEST_F(GridValueListContract, IsKeptWhenTurnedOnAgainAndLostWhenTurnedOff) {
  type.SetHasValueList(true);
  EXPECT_EQ(type.ValueList()->Count(), 2);
  type.SetHasValueList(false);
  EXPECT_EQ(type.ValueList(), nullptr);
  type.SetHasValueList(true);
  EXPECT_EQ(type.ValueList()->Count(), 0);
}

TEST_F(GridValueListContract, SurvivesTheRecordSetWithItsColumn) {
  ShowSample();
  EXPECT_EQ(type.ValueList()->TextOf(2), "Holiday");
}

TEST_F(GridValueListContract, IsWhatTheCellsShow) {
  ShowSample();
  EXPECT_EQ(under_test->CellText(grid, 1, "Type"), "Holiday");
  EXPECT_EQ(grid.CellValue(1, "Type"), Value(2));
}

TEST_F(GridValueListContract, LeavesAValueWithoutATextAsItIs) {
  ShowSample();
  EXPECT_EQ(under_test->CellText(grid, 3, "Type"), "3");
}

}  // namespace
}  // namespace ferrowind::contract
