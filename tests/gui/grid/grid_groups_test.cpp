#include <QAbstractButton>
#include <QApplication>
#include <QMenu>

#include "tests/gui/grid/grid_fixture.h"

namespace ferrowind::qt {
namespace {

using platform::kSortAscending;
using platform::kSortDescending;
using platform::Value;
using Texts = std::vector<std::string>;

/// Rows a1 b1 of type 1 and c2 d2 e2 of type 2, grouped by type.
class GridGroupsTest : public GridTest {
 protected:
  GridGroupsTest() {
    Attach(Rows({{"c", 2}, {"a", 1}, {"d", 2}, {"b", 1}, {"e", 2}}));
    grid_->SetGroupByBoxVisible(true);
    QCoreApplication::processEvents();
  }

  QPoint ExpanderOf(int row) { return {10, View().TopOf(row - 1) + View().RowHeight() / 2}; }
  QAbstractButton* Chip(int position) {
    return widget_->findChild<QAbstractButton*>(QStringLiteral("groupChip%1").arg(position));
  }
  QPoint InHeader(const QWidget& target, QPoint place) {
    return Header().viewport()->mapFromGlobal(target.mapToGlobal(place));
  }
  /// Chooses an entry of the header menu that is open.
  void ChooseFromMenu(const char* name) {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    auto* action = menu->findChild<QAction*>(name);
    ASSERT_NE(action, nullptr) << name;
    ASSERT_TRUE(action->isEnabled()) << name;
    menu->setActiveAction(action);
    QTest::keyClick(menu, Qt::Key_Return);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  const Texts all_{"[Types: 1 (2)]", "a", "b", "[Types: 2 (3)]", "c", "d", "e"};
};

TEST_F(GridGroupsTest, ShowARowForEachGroupAndAreExpandedAtFirst) {
  GroupBy(2);
  EXPECT_EQ(Shown(), all_);
  EXPECT_EQ(grid_->RowBookmark(1), 0);
  EXPECT_TRUE(grid_->CellValue(1, "Name").IsEmpty());
  EXPECT_EQ(grid_->CellValue(2, "Name"), Value("a"));
}

TEST_F(GridGroupsTest, ShowTheTextOfTheValueList) {
  auto& column = grid_->ColumnByKey("Type");
  column.SetHasValueList(true);
  column.ValueList()->Add(Value(std::int32_t{1}), "Working day");
  GroupBy(2);
  EXPECT_EQ(Shown().front(), "[Types: Working day (2)]");
}

TEST_F(GridGroupsTest, CollapseAndExpandByTheMarkOfTheirRow) {
  GroupBy(2);
  QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, ExpanderOf(1));
  EXPECT_EQ(Shown(), (Texts{"[Types: 1 (2)]", "[Types: 2 (3)]", "c", "d", "e"}));
  QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, ExpanderOf(1));
  EXPECT_EQ(Shown(), all_);
}

TEST_F(GridGroupsTest, CollapseAndExpandByADoubleClickOnTheirRow) {
  GroupBy(2);
  QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, {200, ExpanderOf(1).y()});
  EXPECT_EQ(grid_->RowCount(), 5);
}

TEST_F(GridGroupsTest, CollapseAndExpandByKeys) {
  GroupBy(2);
  grid_->SetCurrentRow(1);
  for (const auto& [collapse, expand] :
       {std::pair(Qt::Key_Left, Qt::Key_Right), std::pair(Qt::Key_Minus, Qt::Key_Plus),
        std::pair(Qt::Key_Space, Qt::Key_Space)}) {
    QTest::keyClick(&View(), collapse);
    EXPECT_EQ(grid_->RowCount(), 5);
    EXPECT_EQ(grid_->CurrentRow(), 1);
    QTest::keyClick(&View(), expand);
    EXPECT_EQ(grid_->RowCount(), 7);
  }
}

TEST_F(GridGroupsTest, AreReachedFromTheirRowsByTheLeftKeyAndLeftByTheRightKey) {
  GroupBy(2);
  grid_->SetCurrentRow(6);
  grid_->SetCurrentColumn(1);
  QTest::keyClick(&View(), Qt::Key_Left);
  EXPECT_EQ(grid_->CurrentRow(), 4);
  QTest::keyClick(&View(), Qt::Key_Right);
  EXPECT_EQ(grid_->CurrentRow(), 5);
}

TEST_F(GridGroupsTest, TakeTheCurrentRowWhenTheyCollapseOverIt) {
  GroupBy(2);
  grid_->SetCurrentRow(3);
  int changes = 0;
  const auto subscription = grid_->OnCurrentRowChange([&] { ++changes; });
  QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, ExpanderOf(1));
  EXPECT_EQ(grid_->CurrentRow(), 1);
  EXPECT_EQ(changes, 1);
  EXPECT_TRUE(grid_->SelectedRows().empty()) << "a group row is no record";
}

TEST_F(GridGroupsTest, StayCollapsedWhenSortedAndRefilled) {
  GroupBy(2);
  QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, ExpanderOf(1));
  SortBy(1, kSortDescending);
  EXPECT_EQ(Shown(), (Texts{"[Types: 1 (2)]", "[Types: 2 (3)]", "e", "d", "c"}));
  Attach(Rows({{"x", 1}, {"y", 2}}));
  GroupBy(2);
  EXPECT_EQ(Shown(), (Texts{"[Types: 1 (1)]", "[Types: 2 (1)]", "y"}));
}

TEST_F(GridGroupsTest, AllCollapseAndExpand) {
  GroupBy(2);
  grid_->SetCurrentRow(5);
  grid_->CollapseAllGroups();
  EXPECT_EQ(Shown(), (Texts{"[Types: 1 (2)]", "[Types: 2 (3)]"}));
  EXPECT_EQ(grid_->CurrentRow(), 2);
  grid_->ExpandAllGroups();
  EXPECT_EQ(Shown(), all_);
  EXPECT_EQ(grid_->CurrentRow(), 4);
}

TEST_F(GridGroupsTest, ExpandWithAllTheirLevelsWhenSelected) {
  grid_->GroupKeys().Add(2, kSortAscending, 0);
  grid_->GroupKeys().Add(1, kSortAscending, 0);
  grid_->Refresh(true);
  grid_->CollapseAllGroups();
  ASSERT_EQ(grid_->RowCount(), 2);
  grid_->SetCurrentRow(2);
  grid_->ExpandSelection();
  EXPECT_EQ(grid_->RowCount(), 8);
  EXPECT_EQ(grid_->CurrentRow(), 2);
}

TEST_F(GridGroupsTest, AreMadeByDraggingAHeaderIntoTheBox) {
  Texts events;
  const auto before = grid_->OnBeforeGroupChange([&] { events.push_back("before"); });
  const auto after = grid_->OnAfterGroupChange([&] {
    events.push_back("after");
    EXPECT_EQ(grid_->GroupKeys().Count(), 1);
    grid_->Refresh(true);
  });
  Drag(*Header().viewport(), HeaderAt(2), InHeader(widget_->Box(), {40, 10}));
  EXPECT_EQ(events, (Texts{"before", "after"}));
  EXPECT_EQ(Shown(), all_);
  ASSERT_NE(Chip(1), nullptr);
  EXPECT_EQ(Chip(1)->text(), "Types");
  EXPECT_EQ(Header().visualIndex(1), 1) << "the column stays where it is";
}

TEST_F(GridGroupsTest, ShowWithoutAnyoneWhoRefreshes) {
  Drag(*Header().viewport(), HeaderAt(2), InHeader(widget_->Box(), {40, 10}));
  EXPECT_EQ(Shown(), all_);
}

TEST_F(GridGroupsTest, AreNotMadeOfAColumnThatCannotBeGroupedBy) {
  grid_->ColumnByKey("Type").SetGroupable(0);
  Drag(*Header().viewport(), HeaderAt(2), InHeader(widget_->Box(), {40, 10}));
  EXPECT_EQ(grid_->GroupKeys().Count(), 0);
}

TEST_F(GridGroupsTest, AreNotMadeWhenEscapeEndsTheDrag) {
  const QPoint target = InHeader(widget_->Box(), {40, 10});
  QTest::mousePress(Header().viewport(), Qt::LeftButton, {}, HeaderAt(2));
  QTest::mouseMove(Header().viewport(), target);
  QTest::keyClick(&View(), Qt::Key_Escape);
  QTest::mouseRelease(Header().viewport(), Qt::LeftButton, {}, target);
  EXPECT_EQ(grid_->GroupKeys().Count(), 0);
}

TEST_F(GridGroupsTest, ChangePlacesWhenAChipIsDragged) {
  grid_->GroupKeys().Add(2, kSortAscending, 0);
  grid_->GroupKeys().Add(1, kSortAscending, 0);
  grid_->Refresh(true);
  QCoreApplication::processEvents();
  const QPoint before_first = Chip(2)->mapFromGlobal(Chip(1)->mapToGlobal(QPoint(3, 5)));
  Drag(*Chip(2), {5, 5}, before_first);
  EXPECT_EQ(grid_->GroupKeys().Item(1)->ColIndex, 1);
  EXPECT_EQ(grid_->GroupKeys().Item(2)->ColIndex, 2);
  EXPECT_EQ(grid_->GroupKeys().Item(2)->Index, 2);
}

TEST_F(GridGroupsTest, EndWhenTheirChipIsDraggedOutOfTheBox) {
  GroupBy(2);
  QCoreApplication::processEvents();
  Drag(*Chip(1), {5, 5}, Chip(1)->mapFromGlobal(View().viewport()->mapToGlobal(QPoint(50, 200))));
  EXPECT_EQ(grid_->GroupKeys().Count(), 0);
  EXPECT_EQ(grid_->RowCount(), 5);
}

TEST_F(GridGroupsTest, EndByTheMarkOfTheirChipAndTurnByAClickOnIt) {
  GroupBy(2);
  QCoreApplication::processEvents();
  QTest::mouseClick(Chip(1), Qt::LeftButton, {}, {8, 8});
  EXPECT_EQ(grid_->GroupKeys().Item(1)->SortOrder, kSortDescending);
  EXPECT_EQ(Shown().front(), "[Types: 2 (3)]");
  QTest::mouseClick(Chip(1), Qt::LeftButton, {}, {Chip(1)->width() - 8, 8});
  EXPECT_EQ(grid_->GroupKeys().Count(), 0);
}

TEST_F(GridGroupsTest, AreMovedAndRemovedByKeysOnTheirChips) {
  grid_->GroupKeys().Add(2, kSortAscending, 0);
  grid_->GroupKeys().Add(1, kSortAscending, 0);
  grid_->Refresh(true);
  widget_->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(widget_.get()));
  Chip(1)->setFocus();
  QTest::keyClick(Chip(1), Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(grid_->GroupKeys().Item(2)->ColIndex, 2);
  EXPECT_TRUE(Chip(2)->hasFocus());
  QTest::keyClick(Chip(2), Qt::Key_Left);
  EXPECT_TRUE(Chip(1)->hasFocus());
  QTest::keyClick(Chip(1), Qt::Key_Delete);
  ASSERT_EQ(grid_->GroupKeys().Count(), 1);
  EXPECT_EQ(grid_->GroupKeys().Item(1)->ColIndex, 2);
  EXPECT_EQ(Chip(1)->accessibleName(), "Grouped by Types");
}

TEST_F(GridGroupsTest, KeepTheCurrentRecordAndTheSelectionWhenRegrouped) {
  grid_->SetMultiSelect(true);
  Click(5, 1);
  Click(2, 1, Qt::ControlModifier);
  Drag(*Header().viewport(), HeaderAt(2), InHeader(widget_->Box(), {40, 10}));
  EXPECT_EQ(grid_->CellValue(grid_->CurrentRow(), "Name"), Value("a"));
  ASSERT_EQ(grid_->SelectedRows().size(), 2U);
  EXPECT_EQ(grid_->CellValue(grid_->SelectedRows()[0], "Name"), Value("e"));
}

TEST_F(GridGroupsTest, AreMadeAndEndedFromTheHeaderMenuByKeyboard) {
  grid_->SetCurrentRow(1);
  grid_->SetCurrentColumn(2);
  QTest::keyClick(&View(), Qt::Key_Down, Qt::AltModifier);
  ChooseFromMenu("groupByColumn");
  EXPECT_EQ(Shown(), all_);
  QTest::keyClick(&View(), Qt::Key_Down, Qt::AltModifier);
  ChooseFromMenu("collapseAll");
  EXPECT_EQ(grid_->RowCount(), 2);
  QTest::keyClick(&View(), Qt::Key_Down, Qt::AltModifier);
  ChooseFromMenu("expandAll");
  EXPECT_EQ(grid_->RowCount(), 7);
  QTest::keyClick(&View(), Qt::Key_Down, Qt::AltModifier);
  ChooseFromMenu("ungroup");
  EXPECT_EQ(grid_->GroupKeys().Count(), 0);
  QTest::keyClick(&View(), Qt::Key_Down, Qt::AltModifier);
  ChooseFromMenu("showGroupPanel");
  EXPECT_FALSE(grid_->GroupByBoxVisible());
}

TEST_F(GridGroupsTest, RunOverTheLinesBetweenTheColumnsOfRecords) {
  GroupBy(2);
  const QImage shown = View().viewport()->grab().toImage();
  const int line = View().columnViewportPosition(0) + View().columnWidth(0) - 1;
  std::vector<bool> have_line;
  for (int row = 0; row < Model().rowCount(); ++row) {
    const int middle = View().visualRect(Model().index(row, 0)).center().y();
    have_line.push_back(shown.pixelColor(line, middle) == View().Colors().line);
  }
  EXPECT_EQ(have_line, (std::vector<bool>{false, true, true, false, true, true, true}));
  EXPECT_NE(shown.pixelColor(line, shown.height() - 1), View().Colors().line);
}

TEST_F(GridGroupsTest, TellAssistiveToolsWhetherTheyAreExpanded) {
  GroupBy(2);
  const QModelIndex group = Model().index(0, 2);
  EXPECT_EQ(Model().data(group, Qt::AccessibleTextRole).toString(), "Types: 1 (2)");
  EXPECT_TRUE(Model().data(group, Qt::AccessibleDescriptionRole).toString().contains("expanded"));
  grid_->CollapseAllGroups();
  EXPECT_TRUE(Model().data(group, Qt::AccessibleDescriptionRole).toString().contains("collapsed"));
}

}  // namespace
}  // namespace ferrowind::qt
