#include "ferrowind/adapters/qt/table/table_header.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>

#include "ferrowind/adapters/qt/grid/row_painter.h"
#include "ferrowind/adapters/qt/look/text_line.h"
#include "ferrowind/adapters/qt/look/text_tip.h"
#include "ferrowind/adapters/qt/table/table_view.h"

namespace ferrowind::qt {

namespace {

constexpr int kPadding = 7;
constexpr int kHeightPadding = 12;
constexpr int kSortMarkSize = 8;
constexpr int kSortMarkSpace = 14;
constexpr int kLeastWidth = 24;

Qt::Alignment AlignmentOf(platform::CellAlignment alignment) {
  switch (alignment) {
    case platform::CellAlignment::kLeading:
      return Qt::AlignLeft;
    case platform::CellAlignment::kCentre:
      return Qt::AlignHCenter;
    case platform::CellAlignment::kTrailing:
      return Qt::AlignRight;
  }
  return Qt::AlignLeft;
}

}  // namespace

TableHeader::TableHeader(TableView& view) : QHeaderView(Qt::Horizontal, &view), view_(view) {
  setSectionResizeMode(QHeaderView::Interactive);
  setMinimumSectionSize(kLeastWidth);
  setSectionsMovable(false);
  setHighlightSections(false);
  connect(this, &QHeaderView::sectionResized, this, [this](int column) {
    if (is_pressed_) emit ResizedByOperator(column);
  });
}

QString TableHeader::CaptionOf(int column) const {
  return model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
}

int TableHeader::FittingWidth(int column) const {
  const int mark = view_.Sorts() ? kSortMarkSpace : 0;
  return fontMetrics().horizontalAdvance(CaptionOf(column)) + 2 * kPadding + mark + 1;
}

QSize TableHeader::sizeHint() const { return {length(), fontMetrics().height() + kHeightPadding}; }

int TableHeader::SortMarkWidth(int column) const {
  const auto& sorted = view_.Model()->Content().Sorted();
  return sorted && static_cast<int>(sorted->column) == column ? kSortMarkSpace : 0;
}

bool TableHeader::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip || model() == nullptr) return QHeaderView::viewportEvent(event);
  const auto& help = *static_cast<QHelpEvent*>(event);
  const int column = logicalIndexAt(help.pos());
  QString cut;
  QRect area;
  if (column >= 0) {
    area = QRect(sectionViewportPosition(column), 0, sectionSize(column), height());
    const int room = area.width() - 2 * kPadding - SortMarkWidth(column);
    if (fontMetrics().horizontalAdvance(CaptionOf(column)) > room) cut = CaptionOf(column);
  }
  ShowTextTip(help, *viewport(), area, cut);
  return true;
}

void TableHeader::mousePressEvent(QMouseEvent* event) {
  is_pressed_ = true;
  QHeaderView::mousePressEvent(event);
}

void TableHeader::mouseReleaseEvent(QMouseEvent* event) {
  is_pressed_ = false;
  QHeaderView::mouseReleaseEvent(event);
}

void TableHeader::paintEvent(QPaintEvent* event) {
  {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), view_.Colors().header);
    painter.fillRect(QRect(0, height() - 1, width(), 1), view_.Colors().header_line);
  }
  QHeaderView::paintEvent(event);
}

void TableHeader::paintSection(QPainter* painter, const QRect& area, int column) const {
  const GridColors& colors = view_.Colors();
  painter->fillRect(area, colors.header);
  painter->fillRect(QRect(area.left(), area.bottom(), area.width(), 1), colors.header_line);
  const bool is_mirrored = isRightToLeft();
  const int line = is_mirrored ? area.left() : area.right();
  painter->fillRect(QRect(line, area.top() + 4, 1, area.height() - 8), colors.header_line);
  QRect room = area.adjusted(kPadding, 0, -kPadding, 0);
  if (SortMarkWidth(column) > 0) {
    QRect mark = room;
    if (is_mirrored) {
      mark.setRight(room.left() + kSortMarkSize - 1);
      room.setLeft(room.left() + kSortMarkSpace);
    } else {
      mark.setLeft(room.right() - kSortMarkSize + 1);
      room.setRight(room.right() - kSortMarkSpace);
    }
    const QRectF square(mark.left(), area.center().y() - kSortMarkSize / 2.0, kSortMarkSize, kSortMarkSize);
    PaintTriangle(*painter, square,
                  view_.Model()->Content().Sorted()->is_descending ? Pointing::kDown : Pointing::kUp,
                  colors.text);
  }
  painter->setPen(colors.text);
  const auto alignment = view_.Model()->Content().Columns()[static_cast<std::size_t>(column)].alignment;
  DrawTextLine(*painter, room, AlignmentOf(alignment) | Qt::AlignVCenter,
               fontMetrics().elidedText(CaptionOf(column), Qt::ElideRight, room.width()));
}

}  // namespace ferrowind::qt
