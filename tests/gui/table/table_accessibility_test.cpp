#include <QAccessible>

#include "tests/gui/table/table_fixture.h"

namespace ferrowind::qt {
namespace {

using platform::CellMark;
using platform::TableRow;

class TableAccessibilityTest : public TableTest {
 protected:
  QAccessibleInterface& View() { return *QAccessible::queryAccessibleInterface(view_.get()); }
  QAccessibleInterface& Cell(int row, int column) { return *View().tableInterface()->cellAt(row, column); }
  static std::string Name(const QAccessibleInterface& element) {
    return element.text(QAccessible::Name).toStdString();
  }
  static std::string Description(const QAccessibleInterface& element) {
    return element.text(QAccessible::Description).toStdString();
  }
};

TEST_F(TableAccessibilityTest, ReadsCellsAndHeaders) {
  table_->SetRows({Row("a", "Good Friday"), Row("b", "Easter Monday")});
  EXPECT_EQ(View().role(), QAccessible::Table);
  EXPECT_EQ(View().tableInterface()->rowCount(), 2);
  EXPECT_EQ(View().tableInterface()->columnCount(), 3);
  EXPECT_EQ(View().tableInterface()->columnDescription(1), "Name");
  EXPECT_EQ(Name(Cell(1, 1)), "Easter Monday");
}

TEST_F(TableAccessibilityTest, SaysAMarkByItsWordOnceOnly) {
  TableRow row = Row("a", "4 days");
  row.cells[0].text = "Prepared";
  row.cells[0].mark = CellMark::kPrepared;
  row.cells[1].mark = CellMark::kDiffers;
  row.cells[2].mark = CellMark::kWarning;
  table_->SetRows({row});
  EXPECT_EQ(Name(Cell(0, 0)), "Prepared");
  EXPECT_EQ(Name(Cell(0, 1)), "Differs: 4 days");
  EXPECT_EQ(Name(Cell(0, 2)), "Warning");
}

TEST_F(TableAccessibilityTest, TellsTheRestOfTheRowWhereRowsAreSelected) {
  TableRow row = Row("a", "Good Friday", "Two days before Easter");
  row.cells[1].description = "A holiday point";
  row.cells[2].mark = CellMark::kAdded;
  table_->SetRows({row});
  EXPECT_EQ(Description(Cell(0, 1)), "A holiday point; Day: Day a; Why: Added: Two days before Easter");
  Design({.selects_cells = true});
  EXPECT_EQ(Description(Cell(0, 1)), "A holiday point");
}

TEST_F(TableAccessibilityTest, TellsWhetherARowIsChecked) {
  TableRow row = Row("a", "x");
  row.checked = true;
  table_->SetRows({row, Row("b", "y")});
  EXPECT_TRUE(Cell(0, 0).state().checkable);
  EXPECT_TRUE(Cell(0, 0).state().checked);
  EXPECT_FALSE(Cell(0, 1).state().checkable);
  EXPECT_FALSE(Cell(1, 0).state().checkable);
  Press(Qt::Key_Space);
  EXPECT_FALSE(Cell(0, 0).state().checked);
}

TEST_F(TableAccessibilityTest, TellsWhichCellHasTheFocus) {
  table_->SetRows({Row("a", "x"), Row("b", "y")});
  Press(Qt::Key_Down);
  Press(Qt::Key_Right);
  EXPECT_TRUE(Cell(1, 1).state().focused);
  EXPECT_TRUE(Cell(1, 1).state().selected);
  EXPECT_FALSE(Cell(0, 0).state().selected);
  EXPECT_EQ(View().focusChild(), &Cell(1, 1));
}

TEST_F(TableAccessibilityTest, MakesARowCurrentForAnAssistiveTool) {
  table_->SetRows({Row("a", "x"), Row("b", "y")});
  EXPECT_TRUE(View().tableInterface()->selectRow(1));
  EXPECT_EQ(table_->CurrentRow(), "b");
}

TEST_F(TableAccessibilityTest, SaysWhyItIsEmptyForAsLongAsItIs) {
  table_->SetRows({});
  table_->SetEmptyText("No findings");
  EXPECT_EQ(Description(View()), "No findings");
  table_->SetRows({Row("a", "A")});
  EXPECT_EQ(Description(View()), "");
  table_->SetEmptyText("Nothing at all");
  EXPECT_EQ(Description(View()), "");
  table_->SetRows({});
  EXPECT_EQ(Description(View()), "Nothing at all");
}

}  // namespace
}  // namespace ferrowind::qt
