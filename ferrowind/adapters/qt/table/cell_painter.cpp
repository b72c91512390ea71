#include "ferrowind/adapters/qt/table/cell_painter.h"

#include <QStyle>
#include <QStyleOptionButton>
#include <algorithm>

#include "ferrowind/adapters/qt/look/contrast.h"
#include "ferrowind/adapters/qt/values/qt_text.h"

namespace ferrowind::qt {

using platform::CellAlignment;
using platform::CellMark;
using platform::CellTone;
using platform::TableCell;

namespace {

constexpr int kPadding = 7;
constexpr int kGap = 5;
constexpr int kRowPadding = 8;

unsigned char StyleOf(CellTone tone) {
  return tone == CellTone::kLoud ? TextCache::kBold : TextCache::kPlain;
}

}  // namespace

/// Of a quiet cell as faint as can still be read.
QColor CellPainter::ColorOf(CellTone tone, const QColor& ground, const GridColors& colors) {
  if (tone != CellTone::kQuiet) return colors.text;
  // Rows of both shades show the same colour: the one that is readable on the worse of them.
  const QColor& worst = ground == colors.base ? colors.alternate : ground;
  const auto [place, is_new] = quiet_.try_emplace({worst.rgba(), colors.muted.rgba()});
  if (is_new) place->second = ShadeReadableOn(worst, colors.muted, kTextContrast);
  return place->second;
}

int CellPainter::RowHeight() const {
  const int indicator = widget_.style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, &widget_);
  return std::max(texts_.Metrics().height(), indicator) + kRowPadding;
}

QRect CellPainter::BoxIn(const QRect& area) const {
  const QStyle& style = *widget_.style();
  const QSize size(style.pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &widget_),
                   style.pixelMetric(QStyle::PM_IndicatorHeight, nullptr, &widget_));
  const QRect inner = area.adjusted(kPadding, 0, -kPadding, -1);
  return QStyle::alignedRect(widget_.layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter, size, inner);
}

int CellPainter::ContentWidth(const TableCell& cell, const QString& text) const {
  const int width = text.isEmpty() ? 0 : texts_.WidthOf(text, StyleOf(cell.tone));
  if (cell.mark == CellMark::kNone) return width;
  return MarkSide() + (width > 0 ? kGap + width : 0);
}

int CellPainter::FittingWidth(const TableCell& cell, bool has_box) const {
  const int box = has_box ? BoxIn(QRect(0, 0, 100, 100)).width() + kGap : 0;
  return ContentWidth(cell, ToQt(cell.text)) + box + 2 * kPadding + 1;
}

void CellPainter::Paint(QPainter& painter, const QRect& area, const TableCell& cell, CellAlignment alignment,
                        std::optional<bool> box, const QColor& ground, const GridColors& colors) {
  const bool is_mirrored = widget_.layoutDirection() == Qt::RightToLeft;
  QRect room = area.adjusted(kPadding, 0, -kPadding, -1);
  /// Takes so much off the leading side of the room.
  const auto take = [&](int width) {
    QRect taken = room;
    if (is_mirrored) {
      taken.setLeft(room.right() - width + 1);
      room.setRight(taken.left() - 1);
    } else {
      taken.setRight(room.left() + width - 1);
      room.setLeft(taken.right() + 1);
    }
    return taken;
  };
  if (box) {
    QStyleOptionButton option;
    option.initFrom(&widget_);
    option.rect = BoxIn(area);
    option.state |= *box ? QStyle::State_On : QStyle::State_Off;
    widget_.style()->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &option, &painter, &widget_);
    take(option.rect.width() + kGap);
  }

  const QString text = ToQt(cell.text);
  const bool is_leading = alignment == CellAlignment::kLeading;
  const int spare = is_leading ? 0 : std::max(room.width() - ContentWidth(cell, text), 0);
  if (alignment == CellAlignment::kCentre) take(spare / 2);
  if (alignment == CellAlignment::kTrailing) take(spare);
  const QColor color = ColorOf(cell.tone, ground, colors);
  if (cell.mark != CellMark::kNone) {
    const int side = MarkSide();
    const QRect mark = take(side);
    marks_.Paint(painter, {mark.left(), mark.top() + (mark.height() - side) / 2}, side, cell.mark, color);
    take(kGap);
  }
  painter.setPen(color);
  texts_.Draw(painter, room, is_mirrored ? Qt::AlignRight : Qt::AlignLeft, text, StyleOf(cell.tone));
}

}  // namespace ferrowind::qt
