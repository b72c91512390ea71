// What the rows look like: which are chosen, which one is current, and what is too long to be read.
#include <QHelpEvent>
#include <QToolTip>
#include <QVBoxLayout>
#include <memory>

#include "ferrowind/adapters/qt/grid/grid_colors.h"
#include "ferrowind/adapters/qt/look/contrast.h"
#include "ferrowind/adapters/qt/look/theme.h"

#include "tests/gui/grid/grid_fixture.h"

namespace ferrowind::qt {
namespace {

using platform::Value;

/// In each theme.
class GridLooksTest : public GridTest, public ::testing::WithParamInterface<Theme> {
 protected:
  GridLooksTest() {
    ApplyTheme(*qApp, GetParam());
    Attach(Rows({{"a", 1}, {"b", 1}, {"c", 1}, {"d", 1}, {"e", 1}}));
    grid_->SetMultiSelect(true);
    widget_->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(widget_.get()));
  }
  ~GridLooksTest() override { ApplyTheme(*qApp, Theme::kLight); }
  void Deactivate() {
    other_.show();
    other_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other_));
  }
  QImage Picture() { return View().viewport()->grab().toImage(); }
  QColor PixelOfRow(const QImage& picture, int row, int from_left, int from_top) {
    return picture.pixelColor(from_left, View().TopOf(row - 1) + from_top);
  }
  /// Beside all texts.
  QColor Ground(int row) { return PixelOfRow(Picture(), row, 4, 4); }
  QColor Edge(int row) { return PixelOfRow(Picture(), row, 0, View().RowHeight() / 2); }
  /// Its edges run through the lines between the columns.
  void ExpectFramed(int row) {
    const QColor ground = Ground(row);
    const QImage picture = Picture();
    EXPECT_GE(Contrast(Edge(row), ground), 3.0);
    for (int x = 0; x < picture.width(); ++x)
      ASSERT_GE(Contrast(PixelOfRow(picture, row, x, View().RowHeight() - 1), ground), 3.0) << x;
  }

  QWidget other_;
};

INSTANTIATE_TEST_SUITE_P(Themes, GridLooksTest, ::testing::Values(Theme::kLight, Theme::kDark));

TEST_P(GridLooksTest, TellWhatIsSelectedByTheGroundAndWhatIsCurrentByAFrame) {
  Click(1, 1);
  QTest::keyClick(&View(), Qt::Key_Down, Qt::ControlModifier);
  QTest::keyClick(&View(), Qt::Key_Down, Qt::ControlModifier);
  ASSERT_EQ(grid_->CurrentRow(), 3);
  EXPECT_EQ(Ground(3), Ground(5)) << "the current row is not chosen";
  EXPECT_NE(Ground(1), Ground(3));
  ExpectFramed(3);
  EXPECT_EQ(Edge(1), Ground(1));
}

TEST_P(GridLooksTest, TellTheCurrentRowOfARangeFromTheOthers) {
  Click(2, 1);
  Click(4, 1, Qt::ShiftModifier);
  EXPECT_EQ(Ground(2), Ground(3));
  EXPECT_NE(Ground(4), Ground(3));
  EXPECT_NE(Ground(3), Ground(5));
  ExpectFramed(4);
  EXPECT_EQ(Edge(3), Ground(3));
}

TEST_P(GridLooksTest, KeepTellingItInAWindowThatIsNotActive) {
  Click(2, 1);
  Click(4, 1, Qt::ShiftModifier);
  const QColor active = Ground(4);
  Deactivate();
  ExpectFramed(4);
  EXPECT_NE(Ground(4), active);
  EXPECT_NE(Ground(3), Ground(5));
  EXPECT_GE(Contrast(Ground(3), Ground(5)), 1.3);
}

TEST_P(GridLooksTest, FollowTheActivationOfAHostsWindow) {
  Click(2, 1);
  QWidget host;
  auto* layout = new QVBoxLayout(&host);
  auto* page = new QWidget(&host);
  layout->addWidget(page);
  (new QVBoxLayout(page))->addWidget(widget_.get());
  host.show();
  host.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&host));
  const QColor active = View().Colors().selected;
  Deactivate();
  EXPECT_NE(View().Colors().selected, active);
  host.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&host));
  EXPECT_EQ(View().Colors().selected, active);
  widget_->setParent(nullptr);
}

class GridTipTest : public GridTest {
 protected:
  static constexpr const char* kLongText = "A <b>text</b> that is far too long for a column of such a width";

  ~GridTipTest() override { QToolTip::hideText(); }
  static QString TipAt(QWidget& viewport, const QPoint& place) {
    QHelpEvent event(QEvent::ToolTip, place, viewport.mapToGlobal(place));
    QCoreApplication::sendEvent(&viewport, &event);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
  }
  /// A tooltip that is on show goes after a moment.
  static bool HasNoTip(QWidget& viewport, const QPoint& place) {
    (void)TipAt(viewport, place);
    return QTest::qWaitFor([] { return !QToolTip::isVisible(); }, 2000);
  }
  bool HasNoTip(int row, int column) { return HasNoTip(*View().viewport(), CellAt(row, column)); }
  QString TipOfCell(int row, int column) { return TipAt(*View().viewport(), CellAt(row, column)); }
};

TEST_F(GridTipTest, ReadsACutTextToTheEnd) {
  Attach({{kLongText, 1, Value(), Value()}, {"short", 1, Value(), Value()}});
  Header().resizeSection(0, 90);
  EXPECT_TRUE(TipOfCell(1, 1).contains(QString(kLongText).toHtmlEscaped()));
  EXPECT_TRUE(HasNoTip(2, 1)) << "a text that is read in full needs none";
  EXPECT_TRUE(TipOfCell(1, 1).contains("far too long"));
  Header().resizeSection(0, 600);
  EXPECT_TRUE(HasNoTip(1, 1));
}

TEST_F(GridTipTest, ReadsACutHeaderToTheEnd) {
  grid_->AddColumn("A caption of many words", 0, 1, "Long");
  Attach(Rows({{"a", 1}}));
  Header().resizeSection(4, 60);
  EXPECT_TRUE(TipAt(*Header().viewport(), HeaderAt(5)).contains("A caption of many words"));
  EXPECT_TRUE(HasNoTip(*Header().viewport(), HeaderAt(1)));
}

TEST_F(GridTipTest, CountsTheSortMarkOfAHeader) {
  Attach(Rows({{"a", 1}}));
  Header().resizeSection(0, QFontMetrics(Header().font()).horizontalAdvance("Names") + 16);
  EXPECT_TRUE(HasNoTip(*Header().viewport(), HeaderAt(1)));
  SortBy(1, platform::kSortAscending);
  EXPECT_TRUE(TipAt(*Header().viewport(), HeaderAt(1)).contains("Names"));
}

TEST_F(GridTipTest, ReadsACutGroupRowToTheEnd) {
  Attach({{kLongText, 1, Value(), Value()}, {"short", 1, Value(), Value()}});
  GroupBy(1);
  widget_->resize(200, 300);
  EXPECT_TRUE(TipOfCell(1, 1).contains(QString(kLongText).toHtmlEscaped()));
  EXPECT_TRUE(HasNoTip(3, 1));
}

}  // namespace
}  // namespace ferrowind::qt
