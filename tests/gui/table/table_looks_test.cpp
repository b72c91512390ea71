// What a table looks like: its marks, its tones, what is current, and what is too long to be read.
#include <QHelpEvent>
#include <QToolTip>
#include <algorithm>

#include "ferrowind/adapters/qt/look/contrast.h"
#include "ferrowind/adapters/qt/look/theme.h"

#include "tests/gui/table/table_fixture.h"

namespace ferrowind::qt {
namespace {

using platform::CellMark;
using platform::TableRow;

/// In each theme.
class TableLooksTest : public TableTest, public ::testing::WithParamInterface<Theme> {
 protected:
  TableLooksTest() { ApplyTheme(*qApp, GetParam()); }
  ~TableLooksTest() override { ApplyTheme(*qApp, Theme::kLight); }

  /// The strongest contrast of a pixel in the area to the one at its top left corner, inside of any frame.
  static double StrongestContrast(const QImage& picture, const QRect& area) {
    const QColor ground = picture.pixelColor(area.topLeft() + QPoint(4, 4));
    double strongest = 1;
    for (int y = area.top() + 3; y < area.bottom() - 3; ++y) {
      for (int x = area.left() + 3; x < area.right() - 3; ++x)
        strongest = std::max(strongest, Contrast(picture.pixelColor(x, y), ground));
    }
    return strongest;
  }
  /// The part of a cell that its mark is in.
  [[nodiscard]] QRect MarkArea(const std::string& row) const {
    const QRect cell = CellArea(row, 1);
    return {cell.left() + 4, cell.top() + 1, view_->fontMetrics().height() + 4, cell.height() - 2};
  }
  QString TipAt(const QPoint& point) {
    QHelpEvent event(QEvent::ToolTip, point, view_->viewport()->mapToGlobal(point));
    QCoreApplication::sendEvent(view_->viewport(), &event);
    return QToolTip::text();
  }
};

INSTANTIATE_TEST_SUITE_P(Themes, TableLooksTest, ::testing::Values(Theme::kLight, Theme::kDark),
                         [](const auto& theme) { return theme.param == Theme::kLight ? "Light" : "Dark"; });

TEST_P(TableLooksTest, DrawsEveryMarkStrongEnoughAndEachInAShapeOfItsOwn) {
  view_->resize(620, 600);
  table_->SetRows(AllMarks());
  // Away from the rows that are compared.
  table_->SetCurrentRow("0");
  const QImage picture = Picture();
  const QString folder = qEnvironmentVariable("FERROWIND_PICTURES");
  if (!folder.isEmpty())
    view_->grab().save(folder + (GetParam() == Theme::kDark ? "/table-dark.png" : "/table-light.png"));
  std::vector<QImage> shapes;
  for (int mark = 1; mark <= static_cast<int>(CellMark::kToday); ++mark) {
    const QRect area = MarkArea(std::to_string(mark));
    EXPECT_GE(StrongestContrast(picture, area), kTextContrast) << mark;
    const QImage shape = picture.copy(area).convertToFormat(QImage::Format_Mono, Qt::ThresholdDither);
    for (const QImage& other : shapes) EXPECT_NE(shape, other) << mark;
    shapes.push_back(shape);
  }
}

TEST_P(TableLooksTest, WritesTextsOfEveryToneReadablyOnEveryGround) {
  view_->resize(620, 600);
  table_->SetRows(AllMarks());
  for (const char* row : {"2", "3"}) {
    for (const bool is_current : {true, false}) {
      table_->SetCurrentRow(is_current ? row : "9");
      for (const int column : {0, 1, 2})
        EXPECT_GE(StrongestContrast(Picture(), CellArea(row, column).adjusted(30, 0, 0, 0)), kTextContrast)
            << row << column << is_current;
    }
  }
}

TEST_P(TableLooksTest, FramesTheCurrentRowOrCellVisibly) {
  table_->SetRows({Row("a", "A"), Row("b", "B"), Row("c", "C")});
  table_->SetCurrentRow("b");
  const QRect row = CellArea("b", 0);
  const auto frame_contrast = [&](QPoint at) {
    const QImage picture = Picture();
    return Contrast(picture.pixelColor(at), picture.pixelColor(at + QPoint(0, 5)));
  };
  EXPECT_GE(frame_contrast({row.left() + 200, row.top()}), kMarkContrast);
  Design({.selects_cells = true});
  table_->SetCurrentColumn("name");
  const QRect cell = CellArea("b", 1);
  EXPECT_GE(frame_contrast({cell.center().x() + 10, cell.top()}), kMarkContrast);
  const QRect other = CellArea("b", 2);
  EXPECT_LT(frame_contrast({other.center().x() + 30, other.top()}), 1.2);
}

TEST_P(TableLooksTest, SaysWhatItSaysWhileItIsEmpty) {
  const QImage silent = Picture();
  table_->SetEmptyText("No findings");
  const QImage picture = Picture();
  EXPECT_NE(picture, silent);
  EXPECT_GE(StrongestContrast(picture, picture.rect().adjusted(5, 5, -5, -5)), kTextContrast);
  table_->SetRows({Row("a", "A")});
  EXPECT_EQ(Picture().pixelColor(view_->viewport()->width() / 2, 60), silent.pixelColor(10, 60));
}

TEST_P(TableLooksTest, TellsInItsTooltipWhatIsCutWhatAMarkMeansAndWhatACellMeans) {
  TableRow row = Row("a", "", std::string(200, 'w'));
  row.cells[0].description = "A <day>";
  row.cells[1].mark = CellMark::kWarning;
  table_->SetRows({row, Row("b", "short", "short")});
  view_->resize(400, 200);
  QCoreApplication::processEvents();
  EXPECT_EQ(TipAt(CellArea("b", 1).center()), "");
  EXPECT_TRUE(TipAt(CellArea("a", 0).center()).contains("A &lt;day&gt;"));
  EXPECT_TRUE(TipAt(CellArea("a", 1).center()).contains("Warning"));
  EXPECT_TRUE(TipAt(CellArea("a", 2).center()).contains("wwww"));
}

TEST_P(TableLooksTest, StandsMirroredWhereOneReadsFromTheRight) {
  table_->SetRows(AllMarks());
  view_->setLayoutDirection(Qt::RightToLeft);
  const QString folder = qEnvironmentVariable("FERROWIND_PICTURES");
  if (!folder.isEmpty()) view_->grab().save(folder + "/table-mirrored.png");
  EXPECT_GT(CellArea("1", 0).left(), CellArea("1", 2).left());
  const QImage picture = Picture();
  const QRect day = CellArea("1", 0);
  // The box stands at the right end of the first column.
  EXPECT_GE(StrongestContrast(picture, QRect(day.right() - 26, day.top(), 24, day.height())), kMarkContrast);
  QTest::mouseClick(view_->viewport(), Qt::LeftButton, {}, {day.right() - 12, day.center().y()});
  EXPECT_TRUE(table_->Checked("1"));
}

}  // namespace
}  // namespace ferrowind::qt
