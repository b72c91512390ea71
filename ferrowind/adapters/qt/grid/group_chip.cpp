#include "ferrowind/adapters/qt/grid/group_chip.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "ferrowind/adapters/qt/grid/grid_colors.h"
#include "ferrowind/adapters/qt/grid/row_painter.h"
#include "ferrowind/adapters/qt/look/blend.h"
#include "ferrowind/adapters/qt/values/translated.h"

namespace ferrowind::qt {

namespace {

constexpr int kPadding = 9;
constexpr int kMarkSpace = 14;
constexpr int kRemoveSpace = 18;
constexpr int kHeightPadding = 8;

}  // namespace

GroupChip::GroupChip(GroupByBox* box) : QAbstractButton(box), box_(*box) {
  setFocusPolicy(Qt::TabFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setCursor(Qt::PointingHandCursor);
  connect(this, &QAbstractButton::clicked, this, [this] { emit box_.DirectionToggled(position_); });
}

void GroupChip::Show(const GroupChipText& text, int position) {
  text_ = text;
  position_ = position;
  setText(text.caption);
  setObjectName(QStringLiteral("groupChip%1").arg(position));
  setAccessibleName(Translated("Grouped by %1").arg(text.caption));
  setAccessibleDescription(text.is_descending ? Translated("descending") : Translated("ascending"));
  setToolTip(Translated("Click to turn the order, drag to move, Delete to remove"));
  updateGeometry();
  update();
}

QSize GroupChip::sizeHint() const {
  return {fontMetrics().horizontalAdvance(text_.caption) + 2 * kPadding + kMarkSpace + kRemoveSpace,
          fontMetrics().height() + kHeightPadding};
}

QRect GroupChip::RemoveArea() const {
  const int left = layoutDirection() == Qt::RightToLeft ? 2 : width() - kRemoveSpace - 2;
  return {left, 0, kRemoveSpace, height()};
}

void GroupChip::paintEvent(QPaintEvent* /*event*/) {
  const GridColors colors(palette());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(hasFocus() ? QPen(colors.accent, 1.5) : QPen(colors.header_line));
  painter.setBrush(underMouse() || isDown() ? Blend(colors.base, colors.accent, 0.12) : colors.base);
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
  const QRect remove = RemoveArea();
  const bool is_mirrored = layoutDirection() == Qt::RightToLeft;
  QRect content = rect().adjusted(kPadding, 0, -kPadding, 0);
  if (is_mirrored) {
    content.setLeft(remove.right() + 1);
  } else {
    content.setRight(remove.left() - 1);
  }
  painter.setPen(colors.text);
  painter.drawText(content,
                   static_cast<int>(Qt::AlignVCenter | (is_mirrored ? Qt::AlignRight : Qt::AlignLeft)),
                   text_.caption);
  const int mark_left = is_mirrored ? content.left() + 2 : content.right() - 8;
  PaintTriangle(painter, QRectF(mark_left, height() / 2.0 - 4, 8, 8),
                text_.is_descending ? Pointing::kDown : Pointing::kUp, colors.accent);
  painter.setPen(QPen(colors.muted, 1.4));
  const QPointF middle = QRectF(remove).center();
  painter.drawLine(middle + QPointF(-3, -3), middle + QPointF(3, 3));
  painter.drawLine(middle + QPointF(-3, 3), middle + QPointF(3, -3));
}

void GroupChip::mousePressEvent(QMouseEvent* event) {
  pressed_at_ = event->pos();
  QAbstractButton::mousePressEvent(event);
}

void GroupChip::mouseMoveEvent(QMouseEvent* event) {
  ColumnDrag* drag = box_.Drag();
  if (drag == nullptr || !event->buttons().testFlag(Qt::LeftButton)) return;
  if (!drag->IsUnderWay()) {
    if ((event->pos() - pressed_at_).manhattanLength() < QApplication::startDragDistance()) return;
    drag->Begin({text_.column, position_, true, text_.caption});
  }
  drag->MoveTo(event->globalPosition().toPoint());
}

void GroupChip::mouseReleaseEvent(QMouseEvent* event) {
  ColumnDrag* drag = box_.Drag();
  if (drag != nullptr && drag->IsUnderWay()) {
    setDown(false);
    drag->DropAt(event->globalPosition().toPoint());
    return;
  }
  if (event->button() == Qt::LeftButton && RemoveArea().contains(event->pos()) &&
      RemoveArea().contains(pressed_at_)) {
    setDown(false);
    emit box_.RemoveAsked(position_);
    return;
  }
  QAbstractButton::mouseReleaseEvent(event);
}

void GroupChip::keyPressEvent(QKeyEvent* event) {
  const bool moves = event->modifiers().testFlag(Qt::ControlModifier);
  const int step = layoutDirection() == Qt::RightToLeft ? -1 : 1;
  switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right: {
      const int other = position_ + (event->key() == Qt::Key_Right ? step : -step);
      if (moves) {
        emit box_.MoveAsked(position_, other);
      } else {
        box_.FocusChip(other);
      }
      return;
    }
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
      emit box_.RemoveAsked(position_);
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      click();
      return;
    case Qt::Key_Down:
    case Qt::Key_Escape:
      emit box_.LeaveAsked();
      return;
    default:
      QAbstractButton::keyPressEvent(event);
  }
}

void GroupChip::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  emit box_.MenuAsked(position_, event->globalPos());
}

}  // namespace ferrowind::qt
