#include "ferrowind/adapters/qt/grid/grid_header.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include "ferrowind/adapters/qt/grid/grid_view.h"
#include "ferrowind/adapters/qt/look/text_line.h"
#include "ferrowind/adapters/qt/look/text_tip.h"
#include "ferrowind/adapters/qt/values/qt_text.h"

namespace ferrowind::qt {

namespace {

constexpr int kPadding = 7;
constexpr int kHeightPadding = 12;
constexpr int kSortMarkSize = 8;
constexpr int kSortMarkSpace = 14;
constexpr int kNumberGap = 3;
constexpr int kLeastWidth = 24;

QFont SmallFont(const QFont& font) {
  QFont small = font;
  if (font.pixelSize() > 0) {
    small.setPixelSize(std::max(font.pixelSize() * 4 / 5, 1));
  } else {
    small.setPointSizeF(font.pointSizeF() * 0.8);
  }
  return small;
}

struct SortPlace {
  int place = 0;
  int count = 0;
};

/// Among the sort keys that the operator sees: a number without its predecessor would only puzzle.
SortPlace PlaceInSort(const GridContent& content, std::int16_t column) {
  SortPlace found;
  for (std::int32_t position = 1; position <= content.SortKeys().Count(); ++position) {
    const std::int16_t key = content.SortKeys().Item(position)->ColIndex;
    if (!content.Columns()[key].Visible()) continue;
    ++found.count;
    if (key == column) found.place = found.count;
  }
  return found;
}

}  // namespace

GridHeader::GridHeader(GridView* view) : QHeaderView(Qt::Horizontal, view), view_(view) {
  setSectionResizeMode(QHeaderView::Interactive);
  setMinimumSectionSize(kLeastWidth);
  // Clicks and drags are this class's own: the base would not let a header be dragged out of itself.
  setSectionsClickable(false);
  setSectionsMovable(false);
  setHighlightSections(false);
  setMouseTracking(true);
  connect(this, &QHeaderView::sectionResized, this, [this](int column, int /*old_width*/, int width) {
    // A section that is being hidden is told as one of no width.
    if (width > 0) kept_widths_[column] = width;
    if (is_pressed_) resized_column_ = column;
  });
}

int GridHeader::FirstVisibleVisual() const {
  for (int visual = 0; visual < count(); ++visual) {
    if (!isSectionHidden(logicalIndex(visual))) return visual;
  }
  return -1;
}

int GridHeader::FirstVisibleColumn() const {
  const int visual = FirstVisibleVisual();
  return visual < 0 ? -1 : logicalIndex(visual);
}

int GridHeader::FittingWidth(int column) const {
  if (model() == nullptr) return kLeastWidth;
  const QString caption = model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
  const int order_number = QFontMetrics(SmallFont(font())).horizontalAdvance(QLatin1Char('8')) + kNumberGap;
  return fontMetrics().horizontalAdvance(caption) + 2 * kPadding + kSortMarkSpace + order_number + 1;
}

int GridHeader::KeptWidth(int column) const {
  if (!isSectionHidden(column)) return sectionSize(column);
  const auto kept = kept_widths_.find(column);
  return kept == kept_widths_.end() ? defaultSectionSize() : kept->second;
}

void GridHeader::SetKeptWidth(int column, int width) {
  kept_widths_[column] = width;
  resizeSection(column, width);
}

// Not the base's, which measures every caption.
QSize GridHeader::sizeHint() const { return {length(), fontMetrics().height() + kHeightPadding}; }

bool GridHeader::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip || model() == nullptr) return QHeaderView::viewportEvent(event);
  const auto& help = *static_cast<QHelpEvent*>(event);
  const int column = logicalIndexAt(help.pos());
  QString cut;
  QRect area;
  if (column >= 0) {
    area = QRect(sectionViewportPosition(column), 0, sectionSize(column), height());
    const QString caption = model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    const int room = area.width() - 2 * kPadding - SortMarkWidth(column);
    if (fontMetrics().horizontalAdvance(caption) > room) cut = caption;
  }
  ShowTextTip(help, *viewport(), area, cut);
  return true;
}

int GridHeader::SortMarkWidth(int column) const {
  const GridModel* grid = view_->Model();
  const auto index = static_cast<std::int16_t>(column + 1);
  if (grid == nullptr || grid->Content().SortKeys().OrderOf(index) == platform::kSortNone) return 0;
  const auto [place, count] = PlaceInSort(grid->Content(), index);
  if (count <= 1) return kSortMarkSpace;
  return kSortMarkSpace + QFontMetrics(SmallFont(font())).horizontalAdvance(QString::number(place)) +
         kNumberGap;
}

// Painting

void GridHeader::paintEvent(QPaintEvent* event) {
  const GridColors& colors = view_->Colors();
  {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), colors.header);
    painter.fillRect(QRect(0, height() - 1, width(), 1), colors.header_line);
  }
  QHeaderView::paintEvent(event);
  if (!drop_place_) return;
  QPainter painter(viewport());
  const int x =
      *drop_place_ < count() ? sectionViewportPosition(logicalIndex(*drop_place_)) : length() - offset();
  painter.fillRect(QRect(x - 1, 0, 3, height()), colors.accent);
}

void GridHeader::paintSection(QPainter* painter, const QRect& area, int column) const {
  const GridModel* grid = view_->Model();
  if (grid == nullptr || !area.isValid()) return;
  const GridColors& colors = view_->Colors();
  painter->save();
  painter->setClipRect(area);
  painter->fillRect(area, column == pressed_column_ ? colors.header_pressed : colors.header);
  painter->fillRect(QRect(area.left(), area.bottom(), area.width(), 1), colors.header_line);
  const bool is_mirrored = isRightToLeft();
  const int line = is_mirrored ? area.left() : area.right();
  painter->fillRect(QRect(line, area.top() + 4, 1, area.height() - 8), colors.header_line);
  QRect text_area = area.adjusted(kPadding, 0, -kPadding, -1);

  const GridContent& content = grid->Content();
  const auto index = static_cast<std::int16_t>(column + 1);
  const std::int32_t order = content.SortKeys().OrderOf(index);
  if (order != platform::kSortNone) {
    const int mark_left = is_mirrored ? text_area.left() : text_area.right() - kSortMarkSize;
    const QRectF mark(mark_left, text_area.center().y() - kSortMarkSize / 2.0 + 0.5, kSortMarkSize,
                      kSortMarkSize);
    PaintTriangle(*painter, mark, order > 0 ? Pointing::kUp : Pointing::kDown, colors.accent);
    if (const auto [place, count] = PlaceInSort(content, index); count > 1) {
      painter->setFont(SmallFont(font()));
      painter->setPen(colors.muted);
      const QRect beside = is_mirrored ? text_area.adjusted(kSortMarkSpace, 0, 0, 0)
                                       : text_area.adjusted(0, 0, -kSortMarkSpace, 0);
      DrawTextLine(*painter, beside, Qt::AlignTrailing | Qt::AlignVCenter, QString::number(place));
    }
    const int width = SortMarkWidth(column);
    text_area.adjust(is_mirrored ? width : 0, 0, is_mirrored ? 0 : -width, 0);
  }
  painter->setFont(font());
  painter->setPen(isEnabled() ? palette().color(QPalette::ButtonText) : colors.muted);
  const QString caption = ToQt(content.Columns()[column + 1].Caption());
  DrawTextLine(*painter, text_area,
               Qt::Alignment(grid->headerData(column, orientation(), Qt::TextAlignmentRole).toInt()),
               fontMetrics().elidedText(caption, Qt::ElideRight, text_area.width()));
  painter->restore();
}

// The operator

bool GridHeader::IsOnResizeHandle(int x) const {
  const int grip = style()->pixelMetric(QStyle::PM_HeaderGripMargin, nullptr, this);
  for (int visual = 0; visual < count(); ++visual) {
    const int column = logicalIndex(visual);
    if (isSectionHidden(column)) continue;
    const bool is_mirrored = layoutDirection() == Qt::RightToLeft;
    const int left = sectionViewportPosition(column);
    const int edge = is_mirrored ? left : left + sectionSize(column);
    if (x >= edge - grip && x <= edge + grip) return true;
  }
  return false;
}

void GridHeader::PressSection(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton || IsOnResizeHandle(event.pos().x())) return;
  pressed_column_ = logicalIndexAt(event.pos());
  pressed_at_ = event.pos();
  viewport()->update();
}

void GridHeader::mousePressEvent(QMouseEvent* event) {
  is_pressed_ = true;
  QHeaderView::mousePressEvent(event);
  PressSection(*event);
}

void GridHeader::mouseDoubleClickEvent(QMouseEvent* event) {
  QHeaderView::mouseDoubleClickEvent(event);
  // The second of two quick clicks is a click as well.
  PressSection(*event);
}

void GridHeader::mouseMoveEvent(QMouseEvent* event) {
  if (drag_ != nullptr && drag_->IsUnderWay()) {
    drag_->MoveTo(event->globalPosition().toPoint());
    return;
  }
  const GridModel* grid = view_->Model();
  if (pressed_column_ < 0 || drag_ == nullptr || grid == nullptr ||
      !event->buttons().testFlag(Qt::LeftButton)) {
    QHeaderView::mouseMoveEvent(event);
    return;
  }
  if ((event->pos() - pressed_at_).manhattanLength() < QApplication::startDragDistance()) return;
  const grid_content::StoredColumn& column = grid->Content().Columns()[pressed_column_ + 1];
  drag_->Begin({pressed_column_, 0, column.IsGroupable(), ToQt(column.Caption())});
  drag_->MoveTo(event->globalPosition().toPoint());
}

void GridHeader::mouseReleaseEvent(QMouseEvent* event) {
  QHeaderView::mouseReleaseEvent(event);
  is_pressed_ = false;
  const int resized = std::exchange(resized_column_, -1);
  if (resized >= 0) emit ResizedByOperator(resized);
  const int pressed = std::exchange(pressed_column_, -1);
  viewport()->update();
  if (drag_ != nullptr && drag_->IsUnderWay()) {
    drag_->DropAt(event->globalPosition().toPoint());
    return;
  }
  if (pressed < 0 || event->button() != Qt::LeftButton || logicalIndexAt(event->pos()) != pressed ||
      !viewport()->rect().contains(event->pos())) {
    return;
  }
  emit Clicked(pressed, event->modifiers().testFlag(Qt::ShiftModifier));
}

void GridHeader::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  const int column = logicalIndexAt(event->pos());
  emit MenuAsked(column, event->globalPos());
}

// Drops

int GridHeader::DropPlaceAt(int x) const {
  for (int visual = 0; visual < count(); ++visual) {
    const int column = logicalIndex(visual);
    if (isSectionHidden(column)) continue;
    if (x < sectionViewportPosition(column) + sectionSize(column) / 2) return visual;
  }
  return count();
}

bool GridHeader::ShowDrop(const DraggedColumn& dragged, const QPoint& global) {
  const QPoint position = viewport()->mapFromGlobal(global);
  if (!viewport()->rect().contains(position)) return false;
  // A chip that lands here only leaves the group-by box, its column stays where it is.
  drop_place_ = dragged.group_position > 0 ? std::nullopt : std::optional<int>(DropPlaceAt(position.x()));
  viewport()->update();
  return true;
}

void GridHeader::HideDrop() {
  drop_place_.reset();
  viewport()->update();
}

void GridHeader::Drop(const DraggedColumn& dragged, const QPoint& global) {
  if (dragged.group_position > 0) {
    emit ChipDropped(dragged.group_position);
    return;
  }
  if (dragged.column >= count()) return;
  const int from = visualIndex(dragged.column);
  const int place = DropPlaceAt(viewport()->mapFromGlobal(global).x());
  moveSection(from, place > from ? place - 1 : place);
}

}  // namespace ferrowind::qt
