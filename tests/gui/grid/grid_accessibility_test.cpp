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
