// Which rows are chosen, by keys and by the mouse.
#include <QApplication>
#include <QClipboard>
#include <QScrollBar>

#include "tests/gui/grid/grid_fixture.h"

namespace ferrowind::qt {
namespace {

using platform::Value;
using RowNumbers = std::vector<std::int32_t>;

class GridSelectionTest : public GridTest {
 protected:
  /// A grid of a hundred rows with multiple selection, row 3 the selected one.
  void ShowManyRows() {
    Attach(std::vector<Row>(100, Row{"r", 1, Value(), Value()}));
    grid_->SetMultiSelect(true);
    Click(3, 1);
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}, int times = 1) {
    for (int i = 0; i < times; ++i) QTest::keyClick(&View(), key, modifiers);
  }
};

TEST_F(GridSelectionTest, IsTheRowThatCtrlHomeAndCtrlEndGoTo) {
  ShowManyRows();
  Press(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(grid_->CurrentRow(), 100);
  EXPECT_EQ(grid_->SelectedRows(), RowNumbers{100});
  Press(Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(grid_->CurrentRow(), 1);
  EXPECT_EQ(grid_->SelectedRows(), RowNumbers{1});
}

TEST_F(GridSelectionTest, StaysWhileCtrlAndAKeyMoveTheCurrentRow) {
  ShowManyRows();
  Press(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(grid_->CurrentRow(), 4);
  Press(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(grid_->CurrentRow(), 4 + View().RowsPerPage());
  Press(Qt::Key_PageUp, Qt::ControlModifier);
  Press(Qt::Key_Up, Qt::ControlModifier, 2);
  EXPECT_EQ(grid_->CurrentRow(), 2);
  EXPECT_EQ(grid_->SelectedRows(), RowNumbers{3});
}

TEST_F(GridSelectionTest, TakesTheCurrentRowInAndOutBySpace) {
  ShowManyRows();
  Press(Qt::Key_Down, Qt::ControlModifier, 5);
  Press(Qt::Key_Space);
  EXPECT_EQ(grid_->SelectedRows(), (RowNumbers{3, 8}));
  Press(Qt::Key_Up, Qt::ControlModifier, 5);
  Press(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(grid_->SelectedRows(), RowNumbers{8});
  EXPECT_EQ(grid_->CurrentRow(), 3);
}

TEST_F(GridSelectionTest, KeepsItsLastRowBySpace) {
  ShowManyRows();
  Press(Qt::Key_Space);
  EXPECT_EQ(grid_->SelectedRows(), RowNumbers{3});
  EXPECT_TRUE(View().selectionModel()->isSelected(Model().index(2, 0)));
}

TEST_F(GridSelectionTest, IsTheCurrentRowWhenAGroupCollapsesOverIt) {
  Attach(Rows({{"a", 1}, {"b", 1}, {"c", 2}}));
  grid_->SetMultiSelect(true);
  GroupBy(2);
  Click(2, 1);
  Press(Qt::Key_Down, Qt::ControlModifier, 3);
  ASSERT_EQ(grid_->CurrentRow(), 5);
  View().SetExpanded({0, 0}, false);
  EXPECT_EQ(grid_->SelectedRows(), RowNumbers{3});
  EXPECT_EQ(grid_->CurrentRow(), 3);
}

TEST_F(GridSelectionTest, GoesToAnEndRowThatIsCurrentAlready) {
  ShowManyRows();
  Press(Qt::Key_Up, Qt::ControlModifier, 2);
  ASSERT_EQ(grid_->CurrentRow(), 1);
  Press(Qt::Key_Up);
  EXPECT_EQ(grid_->SelectedRows(), RowNumbers{1});
  Click(3, 1);
  Press(Qt::Key_Up, Qt::ControlModifier, 2);
  Press(Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(grid_->SelectedRows(), RowNumbers{1});
}

TEST_F(GridSelectionTest, KeepsARangeThatTheCurrentRowLeaves) {
  ShowManyRows();
  Press(Qt::Key_Down, Qt::ShiftModifier);
  Press(Qt::Key_Down, Qt::ControlModifier, 3);
  Press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(grid_->SelectedRows(), (RowNumbers{3, 4, 7, 8}));
}

TEST_F(GridSelectionTest, BeginsARangeAtTheRowThatTypingFound) {
  Attach(Rows({{"Ant", 1}, {"Bee", 1}, {"Cat", 1}, {"Dog", 1}}));
  grid_->SetMultiSelect(true);
  Click(1, 1);
  QTest::keyClicks(&View(), "ca");
  Press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(grid_->SelectedRows(), (RowNumbers{3, 4}));
}

TEST_F(GridSelectionTest, ReachesFromAnyRowToAnyOther) {
  constexpr int kMany = 300000;
  Attach(std::vector<Row>(kMany, Row{"r", 1, Value(), Value()}));
  grid_->SetMultiSelect(true);
  Click(1, 1);
  Press(Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(grid_->SelectedRows().size(), static_cast<std::size_t>(kMany));
}

TEST_F(GridSelectionTest, StaysWhenThePlaceBelowTheRowsIsClicked) {
  Attach(Rows({{"Ant", 1}, {"Bee", 1}}));
  grid_->SetMultiSelect(true);
  Click(2, 1);
  QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, QPoint(50, View().viewport()->height() - 3));
  EXPECT_EQ(grid_->SelectedRows(), RowNumbers{2});
}

TEST_F(GridSelectionTest, LeavesABlankToTheTextThatIsBeingTyped) {
  Attach(Rows({{"New", 1}, {"New moon", 1}, {"New year", 1}}));
  grid_->SetMultiSelect(true);
  Click(1, 1);
  QTest::keyClicks(&View(), "new y");
  EXPECT_EQ(grid_->CurrentRow(), 3);
  EXPECT_EQ(grid_->SelectedRows(), RowNumbers{3});
  Press(Qt::Key_Up, Qt::ControlModifier);
  Press(Qt::Key_Space);
  EXPECT_EQ(grid_->SelectedRows(), (RowNumbers{3, 2})) << "a move ends the text";
}

TEST_F(GridSelectionTest, TakesARowOutByCtrlAndSpaceWhileATextIsBeingTyped) {
  Attach(Rows({{"Ant", 1}, {"Bee", 1}}));
  grid_->SetMultiSelect(true);
  grid_->SetCurrentRow(1);
  Press(Qt::Key_Down, Qt::ShiftModifier);
  QTest::keyClick(&View(), Qt::Key_X);
  Press(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(grid_->SelectedRows(), RowNumbers{1});
}

TEST_F(GridSelectionTest, OfAGroupRowIsNotWhatSpaceIsFor) {
  Attach(Rows({{"a", 1}, {"b", 2}}));
  grid_->SetMultiSelect(true);
  GroupBy(2);
  Click(1, 1);
  Press(Qt::Key_Space);
  EXPECT_EQ(grid_->RowCount(), 3) << "the group is folded";
}

TEST_F(GridSelectionTest, ComesIntoSightWhenTheKeyboardLeaves) {
  ShowManyRows();
  View().verticalScrollBar()->setValue(60);
  QFocusEvent leaves(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
  QCoreApplication::sendEvent(&View(), &leaves);
  EXPECT_EQ(grid_->FirstVisibleRow(), 3);
  View().verticalScrollBar()->setValue(1);
  QCoreApplication::sendEvent(&View(), &leaves);
  EXPECT_EQ(grid_->FirstVisibleRow(), 2) << "the selected row is in sight";
}

TEST_F(GridSelectionTest, StaysOutOfSightWhereOneRowIsCurrent) {
  ShowManyRows();
  grid_->SetMultiSelect(false);
  View().verticalScrollBar()->setValue(60);
  QFocusEvent leaves(QEvent::FocusOut, Qt::TabFocusReason);
  QCoreApplication::sendEvent(&View(), &leaves);
  EXPECT_EQ(grid_->FirstVisibleRow(), 61);
}

class GridRangeTest : public GridSelectionTest {
 protected:
  GridRangeTest() {
    grid_->SetMarksRowRanges(true);
    for (const char* key : {"Type", "Day", "Note"}) grid_->ColumnByKey(key).SetVisible(false);
    Attach(Rows({{"a", 1}, {"b", 1}, {"c", 2}, {"d", 2}, {"e", 2}}));
    Click(2, 1);
  }
  QString Copied() {
    Press(Qt::Key_C, Qt::ControlModifier);
    return QApplication::clipboard()->text();
  }
};

TEST_F(GridRangeTest, IsCopiedAsAWholeAndLeavesTheCurrentRowTheOnlySelectedOne) {
  Press(Qt::Key_Down, Qt::ShiftModifier, 2);
  EXPECT_EQ(Copied(), "Names\nb\nc\nd\n");
  EXPECT_EQ(grid_->SelectedRows(), RowNumbers{4});
  Press(Qt::Key_Up, Qt::ShiftModifier, 3);
  EXPECT_EQ(Copied(), "Names\na\nb\n");
  Press(Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Copied(), "Names\nb\nc\nd\ne\n");
}

TEST_F(GridRangeTest, IsAllRowsByCtrlA) {
  Press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(Copied(), "Names\na\nb\nc\nd\ne\n");
  EXPECT_EQ(grid_->CurrentRow(), 2);
}

TEST_F(GridRangeTest, EndsWithAMoveOfAnyOtherKind) {
  Press(Qt::Key_Down, Qt::ShiftModifier);
  Press(Qt::Key_Down);
  EXPECT_EQ(grid_->MarkedRows(), RowNumbers{4});
  Press(Qt::Key_Up, Qt::ShiftModifier);
  Press(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(grid_->MarkedRows(), RowNumbers{2});
  Press(Qt::Key_Down, Qt::ShiftModifier);
  Press(Qt::Key_Space);
  EXPECT_EQ(grid_->MarkedRows(), (RowNumbers{2, 3})) << "Space is for grids with multiple selection";
}

TEST_F(GridRangeTest, StaysWithItsRecordsThroughASort) {
  Press(Qt::Key_Down, Qt::ShiftModifier);
  SortBy(1, platform::kSortDescending);
  EXPECT_EQ(grid_->CurrentRow(), 3);
  EXPECT_EQ(grid_->MarkedRows(), (RowNumbers{3, 4}));
}

TEST_F(GridRangeTest, ExpandsAllGroupsInIt) {
  GroupBy(2);
  grid_->CollapseAllGroups();
  Click(1, 1);
  Press(Qt::Key_Down, Qt::ShiftModifier);
  grid_->ExpandSelection();
  EXPECT_EQ(grid_->RowCount(), 7);
}

}  // namespace
}  // namespace ferrowind::qt
