#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>

#include "ferrowind/adapters/qt/grid/grid_colors.h"
#include "ferrowind/adapters/qt/look/contrast.h"

#include "tests/gui/grid/grid_fixture.h"

namespace ferrowind::qt {
namespace {

using platform::kSortAscending;
using platform::kSortDescending;
using platform::Value;
using Texts = std::vector<std::string>;

using GridOperatorTest = GridTest;

TEST_F(GridOperatorTest, ClicksAHeaderAndTheProgramHearsOfIt) {
  Attach(Rows({{"b", 1}, {"a", 2}}));
  Texts clicked;
  const auto subscription =
      grid_->OnHeaderClick([&](platform::GridColumn& column) { clicked.push_back(column.Key()); });
  ClickHeader(2);
  ClickHeader(1);
  EXPECT_EQ(clicked, (Texts{"Type", "Name"}));
  EXPECT_EQ(grid_->SortKeys().Count(), 0) << "sorting is the program's decision";
}

TEST_F(GridOperatorTest, AddsASortKeyByAShiftClickAndTurnsItByAnother) {
  Attach(Rows({{"b", 1}, {"a", 2}, {"a", 3}}));
  SortBy(1, kSortAscending);
  int clicks = 0;
  const auto subscription = grid_->OnHeaderClick([&](platform::GridColumn&) { ++clicks; });
  ClickHeader(2, Qt::ShiftModifier);
  ASSERT_EQ(grid_->SortKeys().Count(), 2);
  EXPECT_EQ(grid_->SortKeys().Item(2)->ColIndex, 2);
  ClickHeader(2, Qt::ShiftModifier);
  EXPECT_EQ(grid_->ColumnByKey("Type").SortOrder(), kSortDescending);
  EXPECT_EQ(grid_->CellValue(1, "Type"), Value(std::int32_t{3}));
  EXPECT_EQ(clicks, 0);
}

TEST_F(GridOperatorTest, SortsFromTheHeaderMenu) {
  Attach(Rows({{"b", 1}, {"a", 2}}));
  const auto choose = [this](const char* name) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, HeaderAt(1),
                            Header().viewport()->mapToGlobal(HeaderAt(1)));
    QCoreApplication::sendEvent(Header().viewport(), &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    menu->setActiveAction(menu->findChild<QAction*>(name));
    QTest::keyClick(menu, Qt::Key_Return);
  };
  choose("sortAscending");
  EXPECT_EQ(Shown(), (Texts{"a", "b"}));
  choose("sortDescending");
  EXPECT_EQ(Shown(), (Texts{"b", "a"}));
  choose("clearSorting");
  EXPECT_EQ(grid_->SortKeys().Count(), 0);
}

TEST_F(GridOperatorTest, MakesARowCurrentByTheRightButtonWhoseReleaseIsTold) {
  Attach(Rows({{"a", 1}, {"b", 2}}));
  std::vector<std::pair<std::int32_t, std::int32_t>> seen;
  const auto subscription =
      grid_->OnMouseUp([&](std::int32_t button) { seen.emplace_back(button, grid_->CurrentRow()); });
  QTest::mouseClick(View().viewport(), Qt::RightButton, {}, CellAt(2, 1));
  Click(1, 1);
  QTest::mouseClick(View().viewport(), Qt::RightButton, {}, QPoint(50, View().viewport()->height() - 3));
  EXPECT_EQ(seen, (std::vector<std::pair<std::int32_t, std::int32_t>>{{2, 2}, {1, 1}}));
}

TEST_F(GridOperatorTest, AsksForTheContextMenuByKeyboard) {
  Attach(Rows({{"a", 1}}));
  std::vector<std::int32_t> buttons;
  const auto subscription = grid_->OnMouseUp([&](std::int32_t button) { buttons.push_back(button); });
  QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, {5, 5});
  QCoreApplication::sendEvent(&View(), &event);
  EXPECT_TRUE(buttons.empty()) << "there is no current row to open a menu for";
  grid_->SetCurrentRow(1);
  QCoreApplication::sendEvent(&View(), &event);
  EXPECT_EQ(buttons, (std::vector<std::int32_t>{platform::kRightButton}));
}

TEST_F(GridOperatorTest, MovesByKeysAmongRowsAndColumns) {
  std::vector<Row> rows(300, Row{"r", 1, Value(), Value()});
  Attach(rows);
  grid_->ColumnByKey("Type").SetVisible(false);
  grid_->SetCurrentRow(1);
  grid_->SetCurrentColumn(1);
  QTest::keyClick(&View(), Qt::Key_Down);
  EXPECT_EQ(grid_->CurrentRow(), 2);
  QTest::keyClick(&View(), Qt::Key_Right);
  EXPECT_EQ(grid_->CurrentColumn(), 3) << "a hidden column is passed over";
  QTest::keyClick(&View(), Qt::Key_PageDown);
  EXPECT_EQ(grid_->CurrentRow(), 2 + View().RowsPerPage());
  QTest::keyClick(&View(), Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(grid_->CurrentRow(), 300);
  EXPECT_EQ(grid_->CurrentColumn(), 4);
  EXPECT_EQ(grid_->FirstVisibleRow(), 300 - View().RowsPerPage() + 1);
  QTest::keyClick(&View(), Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(grid_->CurrentRow(), 1);
  EXPECT_EQ(grid_->FirstVisibleRow(), 1);
  QTest::keyClick(&View(), Qt::Key_Up);
  EXPECT_EQ(grid_->CurrentRow(), 1);
}

TEST_F(GridOperatorTest, SelectsARangeOfRowsByShift) {
  std::vector<Row> rows(100, Row{"r", 1, Value(), Value()});
  Attach(rows);
  grid_->SetMultiSelect(true);
  Click(3, 1);
  Click(6, 1, Qt::ShiftModifier);
  EXPECT_EQ(grid_->SelectedRows(), (std::vector<std::int32_t>{3, 4, 5, 6}));
  QTest::keyClick(&View(), Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(grid_->SelectedRows().size(), 5U);
  QTest::keyClick(&View(), Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(grid_->SelectedRows().size(), 98U);
}

TEST_F(GridOperatorTest, FindsARowByTypingItsBeginning) {
  Attach(Rows({{"Alpha", 1}, {"Beta", 1}, {"alto", 1}, {"11", 1}, {"12", 1}}));
  grid_->SetCurrentColumn(1);
  QTest::keyClicks(&View(), "al");
  EXPECT_EQ(grid_->CurrentRow(), 1);
  QTest::keyClicks(&View(), "t");
  EXPECT_EQ(grid_->CurrentRow(), 3);
  QTest::qWait(QApplication::keyboardInputInterval() + 50);
  QTest::keyClicks(&View(), "12");
  EXPECT_EQ(grid_->CurrentRow(), 5);
}

TEST_F(GridOperatorTest, GoesFromMatchToMatchByTheSameKey) {
  Attach(Rows({{"Alpha", 1}, {"Beta", 1}, {"alto", 1}}));
  QTest::keyClicks(&View(), "a");
  EXPECT_EQ(grid_->CurrentRow(), 1);
  QTest::keyClicks(&View(), "a");
  EXPECT_EQ(grid_->CurrentRow(), 3);
}

TEST_F(GridOperatorTest, CopiesTheSelectedRowsWithHeadersInTheOrderOfTheColumns) {
  Attach({{"a", 1, Value(), "x\ty"}, {"b & <c>", 2, Value(), "z"}});
  Header().moveSection(3, 0);
  grid_->ColumnByKey("Day").SetVisible(false);
  Click(2, 1);
  QTest::keyClick(&View(), Qt::Key_C, Qt::ControlModifier);
  const QMimeData* copied = QApplication::clipboard()->mimeData();
  EXPECT_EQ(copied->text(), "Notes\tNames\tTypes\nz\tb & <c>\t2\n");
  EXPECT_TRUE(copied->html().contains("<th>Names</th>"));
  EXPECT_TRUE(copied->html().contains("<td>b &amp; &lt;c&gt;</td>"));
  EXPECT_TRUE(copied->html().contains("<td align=\"right\">2</td>"));
}

TEST_F(GridOperatorTest, CopiesAllRowsWhenNoneIsSelected) {
  Attach({{"a", 1, Value(), "x\ty"}, {"b", 2, Value(), "z\n"}});
  grid_->ColumnByKey("Day").SetVisible(false);
  grid_->CopyRows(false);
  EXPECT_EQ(QApplication::clipboard()->text(), "a\t1\tx y\nb\t2\tz \n");
  GroupBy(2);
  grid_->CopyRows(false);
  EXPECT_EQ(QApplication::clipboard()->text(), "a\t1\tx y\nb\t2\tz \n") << "group rows are left out";
}

TEST_F(GridOperatorTest, CopiesASelectedGroupRowAsItsTexts) {
  Attach(Rows({{"a", 1}, {"b", 1}}));
  GroupBy(2);
  grid_->SetCurrentRow(1);
  grid_->CopyRows(false);
  EXPECT_EQ(QApplication::clipboard()->text(), "Types\t1\t2\n");
}

TEST_F(GridOperatorTest, MayLoseTheGridWhileTheHeaderMenuIsOpen) {
  Attach(Rows({{"b", 1}, {"a", 2}}));
  grid_->SetCurrentRow(1);
  QTest::keyClick(&View(), Qt::Key_Down, Qt::AltModifier);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  auto* action = menu->findChild<QAction*>("sortAscending");
  tester_.reset();
  grid_.reset();
  int triggered = 0;
  QObject::connect(action, &QAction::triggered, menu, [&] { ++triggered; });
  menu->setActiveAction(action);
  QTest::keyClick(menu, Qt::Key_Return);
  EXPECT_EQ(triggered, 1) << "the choice was made, and nothing was there to follow it";
}

TEST_F(GridOperatorTest, MayCloseTheGridFromAMouseEvent) {
  Attach(Rows({{"a", 1}}));
  const auto subscription = grid_->OnMouseUp([&](std::int32_t) {
    grid_.reset();
    widget_->hide();
  });
  Click(1, 1);
  EXPECT_EQ(grid_, nullptr);
}

TEST(GridColors, MakeAColourReadableOnDarkGroundAndKeepItsHue) {
  const QColor dark(30, 30, 30);
  for (const QColor& given : {QColor(255, 0, 0), QColor(255, 0, 255), QColor(0, 0, 128)}) {
    const QColor shown = ReadableOn(dark, given);
    EXPECT_GE(Contrast(shown, dark), 4.5);
    EXPECT_NEAR(shown.hslHue(), given.hslHue(), 2);
  }
}

TEST(GridColors, KeepTheGivenColourOnWhite) {
  EXPECT_EQ(ReadableOn(Qt::white, QColor(255, 0, 0)), QColor(255, 0, 0));
  EXPECT_EQ(ReadableOn(Qt::white, QColor(255, 0, 255)), QColor(255, 0, 255));
  EXPECT_GE(Contrast(ReadableOn(Qt::white, Qt::yellow), Qt::white), 3.0);
}

}  // namespace
}  // namespace ferrowind::qt
