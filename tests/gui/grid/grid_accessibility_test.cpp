#include <QAccessible>

#include "tests/gui/grid/grid_fixture.h"

namespace ferrowind::qt {
namespace {

using platform::Value;

class GridAccessibilityTest : public GridTest {
 protected:
  GridAccessibilityTest() {
    Attach({{"a", 1, platform::Date(2026, 5, 1), "first"}, {"b", 2, Value(), "second"}});
  }
  QAccessibleTableInterface* Table() {
    QAccessibleInterface* view = QAccessible::queryAccessibleInterface(&View());
    return view == nullptr ? nullptr : view->tableInterface();
  }
  std::string CellText(int row, int column) {
    return Model().index(row - 1, column - 1).data().toString().toStdString();
  }
  /// Offscreen no assistive tool listens, so that Qt does not tell its table of changes; a new one is asked
  /// instead.
  void ForgetCells() {
    QAccessible::deleteAccessibleInterface(
        QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&View())));
  }
};

TEST_F(GridAccessibilityTest, ReadsCellsAndHeaders) {
  QAccessibleTableInterface* table = Table();
  ASSERT_NE(table, nullptr);
  EXPECT_EQ(table->rowCount(), 2);
  EXPECT_EQ(table->columnCount(), 4);
  EXPECT_EQ(table->columnDescription(1), "Types");
  ASSERT_NE(table->cellAt(1, 3), nullptr);
  EXPECT_EQ(table->cellAt(1, 3)->text(QAccessible::Name), "second");
}

TEST_F(GridAccessibilityTest, NamesTheTableAsTheGrid) {
  GridWidget named;
  named.setAccessibleName("Days");
  const QtGrid grid(named);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&named.View())->text(QAccessible::Name), "Days");
}

TEST_F(GridAccessibilityTest, TellsHeadersAndCellsAsShowingThatAreOnTheScreen) {
  grid_->ColumnByKey("Type").SetVisible(false);
  QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&View());
  std::vector<std::string> showing;
  for (int i = 0; i < table->childCount(); ++i) {
    const QAccessibleInterface* child = table->child(i);
    ASSERT_NE(child, nullptr);
    EXPECT_EQ(table->indexOfChild(child), i);
    if (!child->state().invisible) showing.push_back(child->text(QAccessible::Name).toStdString());
  }
  const std::string day = CellText(1, 3);
  EXPECT_EQ(showing,
            (std::vector<std::string>{"Names", "Days", "Notes", "a", day, "first", "b", "", "second"}));
}

TEST_F(GridAccessibilityTest, TellsTheCurrentCellByTheNumberThatItsEventsGive) {
  grid_->SetCurrentRow(2);
  grid_->SetCurrentColumn(4);
  widget_->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(widget_.get()));
  View().setFocus();
  QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&View());
  QAccessibleInterface* cell = table->focusChild();
  ASSERT_NE(cell, nullptr);
  EXPECT_EQ(cell->text(QAccessible::Name), "second");
  EXPECT_TRUE(cell->state().focused);
  EXPECT_TRUE(cell->state().selected);
  EXPECT_EQ(table->indexOfChild(cell), 2 * 5 + 4);
  EXPECT_EQ(cell->tableCellInterface()->columnHeaderCells().first()->text(QAccessible::Name), "Notes");
}

TEST_F(GridAccessibilityTest, SelectsRows) {
  grid_->SetMultiSelect(true);
  grid_->SetCurrentRow(1);
  EXPECT_TRUE(Table()->selectRow(1));
  EXPECT_EQ(grid_->SelectedRows(), (std::vector<std::int32_t>{1, 2}));
  EXPECT_EQ(Table()->selectedCellCount(), 8);
  EXPECT_EQ(Table()->selectedCells().last()->text(QAccessible::Name), "second");
  EXPECT_TRUE(Table()->unselectRow(0));
  EXPECT_EQ(Table()->selectedRows(), QList<int>{1});
  EXPECT_FALSE(Table()->selectRow(2));
  grid_->SetMultiSelect(false);
  EXPECT_TRUE(Table()->selectRow(0));
  EXPECT_EQ(grid_->CurrentRow(), 1);
}

TEST_F(GridAccessibilityTest, TellsNothingOfAPlaceThatIsGone) {
  QAccessibleInterface* cell = Table()->cellAt(1, 0);
  Attach(Rows({{"c", 3}}));
  EXPECT_FALSE(cell->isValid());
  EXPECT_TRUE(cell->state().invalid);
  EXPECT_EQ(cell->text(QAccessible::Name), "");
  EXPECT_EQ(Table()->cellAt(1, 0), nullptr);
}

TEST_F(GridAccessibilityTest, FindsTheCellUnderThePointer) {
  QAccessibleInterface* view = QAccessible::queryAccessibleInterface(&View());
  const QPoint place = View().viewport()->mapToGlobal(CellAt(2, 1));
  QAccessibleInterface* cell = view->childAt(place.x(), place.y());
  ASSERT_NE(cell, nullptr);
  EXPECT_EQ(cell->text(QAccessible::Name), "b");
  EXPECT_TRUE(cell->rect().contains(place));
}

TEST_F(GridAccessibilityTest, ReadsGroupRowsAndWhetherTheyAreExpanded) {
  GroupBy(2);
  QAccessibleInterface* group = Table()->cellAt(0, 0);
  ASSERT_NE(group, nullptr);
  EXPECT_EQ(group->text(QAccessible::Name), "Types: 1 (1)");
  EXPECT_TRUE(group->text(QAccessible::Description).contains("expanded"));
  grid_->CollapseAllGroups();
  ForgetCells();
  EXPECT_EQ(Table()->rowCount(), 2);
  EXPECT_TRUE(Table()->cellAt(0, 0)->text(QAccessible::Description).contains("collapsed"));
}

TEST_F(GridAccessibilityTest, NamesTheChipsOfTheGroupByBox) {
  GroupBy(2);
  auto* chip = widget_->findChild<QWidget*>("groupChip1");
  QAccessibleInterface* button = QAccessible::queryAccessibleInterface(chip);
  ASSERT_NE(button, nullptr);
  EXPECT_EQ(button->text(QAccessible::Name), "Grouped by Types");
  EXPECT_EQ(button->role(), QAccessible::Button);
}

}  // namespace
}  // namespace ferrowind::qt
