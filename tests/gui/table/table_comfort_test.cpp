// What makes a table pleasant: widths, type-ahead, keys, and many rows.
#include <QElapsedTimer>
#include <QMenu>
#include <QScrollBar>
#include <utility>

#include "tests/gui/table/table_fixture.h"

namespace ferrowind::qt {
namespace {

using testing::ElementsAre;

class TableComfortTest : public TableTest {};

TEST_F(TableComfortTest, FitsItsColumnsToWhatStandsInThemAndStretchesTheRest) {
  table_->SetRows({Row("a", "A name of some length", "x")});
  EXPECT_GE(view_->columnWidth(1), view_->fontMetrics().horizontalAdvance("A name of some length") + 14);
  const int total = view_->columnWidth(0) + view_->columnWidth(1) + view_->columnWidth(2);
  EXPECT_EQ(total, view_->viewport()->width());
  view_->resize(900, 300);
  EXPECT_EQ(view_->columnWidth(0) + view_->columnWidth(1) + view_->columnWidth(2),
            view_->viewport()->width());
}

TEST_F(TableComfortTest, GrowsWithTheRowsThatItGetsAndNeverShrinks) {
  table_->SetRows({Row("a", "")});
  table_->SetRows({Row("a", "A name of some length")});
  const int width = view_->columnWidth(1);
  EXPECT_GE(width, view_->fontMetrics().horizontalAdvance("A name of some length") + 14);
  table_->SetRows({Row("a", "")});
  EXPECT_EQ(view_->columnWidth(1), width);
  EXPECT_EQ(view_->columnWidth(0) + width + view_->columnWidth(2), view_->viewport()->width());
}

TEST_F(TableComfortTest, LeavesMostOfItsRoomToTheColumnsThatStretchAndLackIt) {
  const std::string name = "A name of such a length that hardly any room would be left beside it";
  view_->resize(560, 300);
  table_->SetRows({Row("a", name, std::string(100, 'w'))});
  EXPECT_LE(view_->columnWidth(1), 240);
  EXPECT_GT(view_->columnWidth(1), view_->fontMetrics().horizontalAdvance("A name of such a"));
  view_->resizeColumnToContents(1);
  EXPECT_GT(view_->columnWidth(1), 240) << "a double click on its edge shows all of it";
}

TEST_F(TableComfortTest, ShowsALongNameInFullWhileTheColumnsThatStretchHaveRoom) {
  const std::string name = "The national day of independence and unity";
  const int needed = view_->fontMetrics().horizontalAdvance(QString::fromStdString(name)) + 14;
  ASSERT_GT(needed, 240);
  table_->SetRows({Row("a", name, std::string(100, 'w'))});
  EXPECT_LT(view_->columnWidth(1), needed);
  view_->resize(900, 300);
  EXPECT_GE(view_->columnWidth(1), needed);
  view_->resize(620, 300);
  EXPECT_LT(view_->columnWidth(1), needed);
}

TEST_F(TableComfortTest, StretchesTheRestStillWhenTheOperatorHasGivenAColumnAWidth) {
  table_->SetRows({Row("a", "Name", "x")});
  TableHeader& header = view_->Header();
  const int edge = header.sectionViewportPosition(0) + header.sectionSize(0) - 1;
  QTest::mousePress(header.viewport(), Qt::LeftButton, {}, {edge, header.height() / 2});
  QTest::mouseMove(header.viewport(), {edge + 40, header.height() / 2});
  QTest::mouseRelease(header.viewport(), Qt::LeftButton, {}, {edge + 40, header.height() / 2});
  view_->resize(900, 300);
  EXPECT_EQ(view_->columnWidth(0) + view_->columnWidth(1) + view_->columnWidth(2),
            view_->viewport()->width());
}

TEST_F(TableComfortTest, KeepsTheWidthOfADoubleClickOnTheEdge) {
  const std::string long_text = "A text of such a length that hardly any room would be left beside it, none";
  table_->SetRows({Row("a", long_text, long_text)});
  const int given = view_->columnWidth(1);
  TableHeader& header = view_->Header();
  const QPoint edge(header.sectionViewportPosition(1) + header.sectionSize(1) - 1, header.height() / 2);
  QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, edge);
  QTest::mouseDClick(header.viewport(), Qt::LeftButton, {}, edge);
  const int width = view_->columnWidth(1);
  EXPECT_GT(width, given);
  view_->resize(630, 300);
  EXPECT_EQ(view_->columnWidth(1), width);
}

TEST_F(TableComfortTest, KeepsAWidthThatTheOperatorGave) {
  table_->SetRows({Row("a", "Name", "x")});
  TableHeader& header = view_->Header();
  const int edge = header.sectionViewportPosition(0) + header.sectionSize(0) - 1;
  const int y = header.height() / 2;
  QTest::mousePress(header.viewport(), Qt::LeftButton, {}, {edge, y});
  QTest::mouseMove(header.viewport(), {edge + 20, y});
  QTest::mouseMove(header.viewport(), {edge + 40, y});
  QTest::mouseRelease(header.viewport(), Qt::LeftButton, {}, {edge + 40, y});
  const int width = view_->columnWidth(0);
  EXPECT_GT(width, view_->sizeHintForIndex(view_->Model()->index(0, 0)).width());
  table_->SetRows({});
  table_->SetRows({Row("b", "Another name of quite some length", "x")});
  view_->resize(700, 300);
  EXPECT_EQ(view_->columnWidth(0), width);
}

TEST_F(TableComfortTest, GoesToTheRowWhoseTextIsTypedBlanksIncluded) {
  table_->SetRows({Row("1", "Good Friday"), Row("2", "Good Monday"), Row("3", "Boxing Day")});
  Press(Qt::Key_Right);
  for (const char key : std::string("good m")) QTest::keyClick(view_.get(), key);
  EXPECT_EQ(table_->CurrentRow(), "2");
}

TEST_F(TableComfortTest, FindsARowOfCellsByItsFirstOneAndStaysInItsColumn) {
  Design({.selects_cells = true});
  table_->SetRows({Row("aud", "Prepared"), Row("eur", "Prepared"), Row("usd", "Prepared")});
  Press(Qt::Key_Right);
  for (const char key : std::string("day usd")) QTest::keyClick(view_.get(), key);
  EXPECT_EQ(table_->CurrentRow(), "usd");
  EXPECT_EQ(table_->CurrentColumn(), "name");
  QTest::keyClick(view_.get(), 'x');
  EXPECT_EQ(table_->CurrentRow(), "usd");
  EXPECT_EQ(table_->CurrentColumn(), "name");
}

TEST_F(TableComfortTest, LeavesTabToTheWindow) {
  table_->SetRows({Row("1", "a"), Row("2", "b")});
  Press(Qt::Key_Tab);
  EXPECT_EQ(table_->CurrentRow(), "1");
}

TEST_F(TableComfortTest, GoesToTheFirstAndTheLastRowByHomeAndEnd) {
  table_->SetRows({Row("1", "a"), Row("2", "b"), Row("3", "c")});
  Press(Qt::Key_End);
  EXPECT_EQ(table_->CurrentRow(), "3");
  EXPECT_THAT(table_->SelectedRows(), ElementsAre("3"));
  Press(Qt::Key_Home);
  EXPECT_EQ(table_->CurrentRow(), "1");
}

TEST_F(TableComfortTest, MovesBetweenCellsByTheArrows) {
  Design({.selects_cells = true});
  table_->SetRows({Row("1", "a"), Row("2", "b")});
  Press(Qt::Key_Right);
  Press(Qt::Key_Down);
  EXPECT_EQ(table_->CurrentRow(), "2");
  EXPECT_EQ(table_->CurrentColumn(), "name");
  Press(Qt::Key_Home);
  EXPECT_EQ(table_->CurrentColumn(), "day");
}

TEST_F(TableComfortTest, SortsFromTheMenuOfItsHeadersByKey) {
  Design({.sorts = true});
  table_->SetRows({Row("1", "b"), Row("2", "a")});
  const auto choose = [&](const char* name) {
    Press(Qt::Key_Down, Qt::AltModifier);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    auto* action = menu->findChild<QAction*>(QLatin1String(name));
    ASSERT_NE(action, nullptr);
    menu->setActiveAction(action);
    QTest::keyClick(menu, Qt::Key_Return);
  };
  choose("sortBy.name");
  EXPECT_THAT(table_->RowKeys(), ElementsAre("2", "1"));
  choose("sortBy.name");
  EXPECT_THAT(table_->RowKeys(), ElementsAre("1", "2"));
  choose("sortBy.day");
  EXPECT_THAT(table_->RowKeys(), ElementsAre("1", "2"));
}

TEST_F(TableComfortTest, HasNoMenuOfItsHeadersWhereItDoesNotSort) {
  table_->SetRows({Row("1", "b"), Row("2", "a")});
  Press(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(TableComfortTest, StaysWhereTheOperatorHasScrolledToWhenRowsAreReplaced) {
  std::vector<platform::TableRow> rows;
  for (int i = 0; i < 500; ++i) rows.push_back(Row(std::to_string(i), "name"));
  table_->SetRows(rows);
  table_->SetCurrentRow("200");
  const int first = view_->FirstRow();
  ASSERT_GT(first, 100);
  table_->SetRows(rows);
  EXPECT_EQ(view_->FirstRow(), first);
}

TEST_F(TableComfortTest, BringsTheRowThatTheProgramMakesCurrentIntoView) {
  std::vector<platform::TableRow> rows;
  for (int i = 0; i < 500; ++i) rows.push_back(Row(std::to_string(i), "name"));
  table_->SetRows(rows);
  table_->SetCurrentRow("400");
  EXPECT_TRUE(view_->viewport()->rect().contains(CellArea("400", 0).center()));
}

/// Seconds would be felt; this is far below them also with the sanitizers, which make it many times slower.
TEST_F(TableComfortTest, ShowsAndSortsAHundredThousandRowsAtOnce) {
  Design({.selects_many = true, .sorts = true});
  std::vector<platform::TableRow> rows;
  for (int i = 0; i < 100'000; ++i)
    rows.push_back(Row(std::to_string(i), "n" + std::to_string(i * 7919 % 100'003)));
  QElapsedTimer timer;
  timer.start();
  table_->SetRows(rows);
  Press(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(table_->CurrentRow(), "99999");
  QTest::mouseClick(view_->Header().viewport(), Qt::LeftButton, {},
                    {view_->Header().sectionViewportPosition(1) + 20, 10});
  QCoreApplication::processEvents();
  EXPECT_LT(timer.elapsed(), 15'000);
  EXPECT_EQ(table_->CurrentRow(), "99999");
}

/// Counts how often a table's rows get another room, and ends it where that would go on for ever.
class RoomCount : public QObject {
 public:
  explicit RoomCount(TableView& view) : view_(view) { view.viewport()->installEventFilter(this); }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    constexpr int kEndless = 100;
    if (event->type() == QEvent::Resize && ++count_ > kEndless)
      QCoreApplication::removePostedEvents(&view_, QEvent::MetaCall);
    return false;
  }
  int Take() { return std::exchange(count_, 0); }

 private:
  TableView& view_;
  int count_ = 0;
};

TEST_F(TableComfortTest, SettlesAtEverySizeWhereAScrollBarWouldMakeTheOtherNeeded) {
  table_->SetRows({Row("1", "A"), Row("2", "B"), Row("3", "C"), Row("4", "D")});
  RoomCount rooms(*view_);
  for (int height = 100; height < 150; height += 6) {
    for (int width = 120; width < 200; width += 6) {
      // From a size that needs but the one at the bottom.
      view_->resize(60, 250);
      QCoreApplication::processEvents();
      view_->resize(width, height);
      QTest::qWait(2);
      EXPECT_LE(rooms.Take(), 20) << width << " x " << height;
    }
  }
}

}  // namespace
}  // namespace ferrowind::qt
