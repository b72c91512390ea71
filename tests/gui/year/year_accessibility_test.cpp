// A year as assistive tools see it.
#include <QAccessible>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/year/year_accessible.h"
#include "ferrowind/adapters/qt/year/year_pane.h"
#include "ferrowind/adapters/qt/year/year_widget.h"

#include "tests/gui/year/small_year.h"

namespace ferrowind::qt {
namespace {

using gui::SmallYear;
using year_engine::YearDays;
using year_engine::YearPlace;

class YearAccessibilityTest : public ::testing::Test {
 protected:
  YearAccessibilityTest() {
    widget_.setLocale(QLocale::c());
    widget_.resize(900, 700);
    widget_.show();
    widget_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&widget_));
    pane_.setFocus();
  }
  void Show(const std::vector<std::string>& calendars) { pane_.SetDays(YearDays(SmallYear(calendars))); }
  [[nodiscard]] QAccessibleInterface& Table() const { return *QAccessible::queryAccessibleInterface(&pane_); }
  [[nodiscard]] QAccessibleInterface& Cell(int calendar, int day) const {
    return *Table().tableInterface()->cellAt(calendar, day - 1);
  }
  [[nodiscard]] QString NameOf(int calendar, int day) const {
    return Cell(calendar, day).text(QAccessible::Name);
  }

  YearWidget widget_;
  YearPane& pane_ = widget_.Pane();
};

TEST_F(YearAccessibilityTest, NamesDaysByDateAndMeaning) {
  Show({"EUR"});
  EXPECT_EQ(NameOf(0, 105), QStringLiteral("Friday 14 April 2028, Good Friday, closed"));
  EXPECT_EQ(NameOf(0, 3), QStringLiteral("Monday 3 January 2028, working day"));
}

TEST_F(YearAccessibilityTest, NamesDaysOfSeveralCalendarsByTheirCalendar) {
  Show({"EUR", "USD"});
  EXPECT_EQ(NameOf(1, 105), QStringLiteral("USD, Friday 14 April 2028, Good Friday, closed"));
  EXPECT_EQ(Table().tableInterface()->rowDescription(1), QStringLiteral("Calendar of USD"));
  EXPECT_EQ(Table().tableInterface()->columnDescription(104), QStringLiteral("Friday 14 April 2028"));
}

TEST_F(YearAccessibilityTest, IsATableOfCalendarsAndDays) {
  Show({"EUR", "USD"});
  EXPECT_EQ(Table().role(), QAccessible::Table);
  EXPECT_EQ(Table().tableInterface()->rowCount(), 2);
  EXPECT_EQ(Table().tableInterface()->columnCount(), 366);
  EXPECT_EQ(Table().childCount(), 2 * 366);
  EXPECT_EQ(Table().indexOfChild(&Cell(1, 5)), 366 + 4);
  EXPECT_EQ(Table().tableInterface()->cellAt(2, 0), nullptr);
  EXPECT_EQ(Table().tableInterface()->cellAt(0, 366), nullptr);
  EXPECT_EQ(Table().child(-1), nullptr);
  EXPECT_EQ(Table().child(2 * 366), nullptr);
}

TEST_F(YearAccessibilityTest, TellsFocusAndSelection) {
  Show({"EUR"});
  pane_.GoTo({0, 105});
  pane_.Toggle({0, 110});
  EXPECT_TRUE(Cell(0, 105).state().selected);
  EXPECT_FALSE(Cell(0, 105).state().focused);
  EXPECT_TRUE(Cell(0, 110).state().focused);
  EXPECT_FALSE(Cell(0, 111).state().selected);
  EXPECT_EQ(Table().focusChild(), &Cell(0, 110));
  EXPECT_EQ(Table().tableInterface()->selectedCellCount(), 2);
}

TEST_F(YearAccessibilityTest, FindsDaysByTheirPlaceOnTheScreen) {
  Show({"EUR"});
  const QPoint center = Cell(0, 105).rect().center();
  EXPECT_EQ(Table().childAt(center.x(), center.y()), &Cell(0, 105));
  EXPECT_FALSE(Cell(0, 105).state().invisible);
}

TEST_F(YearAccessibilityTest, DoesWhatTheMouseDoes) {
  Show({"EUR"});
  int activated = 0;
  int asked = 0;
  QObject::connect(&pane_, &YearPane::Activated, &pane_, [&] { ++activated; });
  QObject::connect(&pane_, &YearPane::MenuAsked, &pane_, [&] { ++asked; });
  const auto act = [&](int day, const QString& action) { Cell(0, day).actionInterface()->doAction(action); };
  act(20, QAccessibleActionInterface::setFocusAction());
  EXPECT_EQ(pane_.Cursor().Current(), (YearPlace{0, 20}));
  act(22, QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(pane_.Cursor().Selected().size(), 2U);
  act(22, QAccessibleActionInterface::showMenuAction());
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(pane_.Cursor().Selected().size(), 2U) << "the menu is for all selected days";
  act(30, QAccessibleActionInterface::pressAction());
  EXPECT_EQ(activated, 1);
  EXPECT_EQ(pane_.Cursor().Current(), (YearPlace{0, 30}));
}

TEST_F(YearAccessibilityTest, SurvivesItsContent) {
  Show({"EUR", "USD"});
  QAccessibleInterface& cell = Cell(1, 366);
  EXPECT_TRUE(cell.isValid());
  const QAccessible::Id id = QAccessible::uniqueId(&cell);
  Show({});
  QAccessibleInterface* after = QAccessible::accessibleInterface(id);
  if (after != nullptr) {
    EXPECT_FALSE(after->isValid());
    EXPECT_TRUE(after->text(QAccessible::Name).isEmpty());
  }
  EXPECT_EQ(Table().childCount(), 0);
  EXPECT_EQ(Table().focusChild(), nullptr);
}

}  // namespace
}  // namespace ferrowind::qt
