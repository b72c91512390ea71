#include "ferrowind/adapters/qt/table/cell_painter.h"

#include <QStyle>
#include <QStyleOptionButton>
#include <algorithm>
#include <array>

#include "ferrowind/adapters/qt/look/contrast.h"
#include "ferrowind/adapters/qt/look/glyph_painter.h"
#include "ferrowind/adapters/qt/look/mark_glyphs.h"
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

const Glyph& GlyphOf(CellMark mark) {
  static const std::array glyphs = {
      Glyph(),          CheckedCircleGlyph(), UnequalGlyph(), HalfCircleGlyph(), EmptyCircleGlyph(),
      NoteGlyph(),      TriangleGlyph(),      OctagonGlyph(), PlusGlyph(),       MinusGlyph(),
      TwoArrowsGlyph(), EqualGlyph(),         CrossGlyph(),   RingGlyph(),
  };
  return glyphs.at(static_cast<std::size_t>(mark));
}

/// A cell has one line.
QString LineOf(const TableCell& cell) {
  QString line = ToQt(cell.text);
  line.replace(QLatin1Char('\n'), QLatin1Char(' '));
  return line;
}

/// Of a quiet cell as faint as can still be read.
QColor ColorOf(CellTone tone, const QColor& ground, const GridColors& colors) {
  if (tone != CellTone::kQuiet) return colors.text;
  // Rows of both shades show the same colour: the one that is readable on the worse of them.
  return ShadeReadableOn(ground == colors.base ? colors.alternate : ground, colors.muted, kTextContrast);
}

}  // namespace

QFont CellPainter::FontOf(CellTone tone) const {
  QFont font = widget_.font();
  font.setBold(tone == CellTone::kLoud);
  return font;
}

int CellPainter::MarkSide() const { return widget_.fontMetrics().height(); }

int CellPainter::RowHeight() const {
  const int indicator = widget_.style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, &widget_);
  return std::max(widget_.fontMetrics().height(), indicator) + kRowPadding;
}

QRect CellPainter::BoxIn(const QRect& area) const {
  const QStyle& style = *widget_.style();
  const QSize size(style.pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &widget_),
                   style.pixelMetric(QStyle::PM_IndicatorHeight, nullptr, &widget_));
  const QRect inner = area.adjusted(kPadding, 0, -kPadding, -1);
  return QStyle::alignedRect(widget_.layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter, size, inner);
}

int CellPainter::ContentWidth(const TableCell& cell, const QFontMetrics& metrics) const {
  const int text = cell.text.empty() ? 0 : metrics.horizontalAdvance(LineOf(cell));
  if (cell.mark == CellMark::kNone) return text;
  return MarkSide() + (text > 0 ? kGap + text : 0);
}

int CellPainter::FittingWidth(const TableCell& cell, bool has_box) const {
  const int box = has_box ? BoxIn(QRect(0, 0, 100, 100)).width() + kGap : 0;
  return ContentWidth(cell, QFontMetrics(FontOf(cell.tone))) + box + 2 * kPadding + 1;
}

void CellPainter::Paint(QPainter& painter, const QRect& area, const TableCell& cell, CellAlignment alignment,
                        std::optional<bool> box, const QColor& ground, const GridColors& colors) const {
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

  const QFont font = FontOf(cell.tone);
  const QFontMetrics metrics(font);
  const int spare = std::max(room.width() - ContentWidth(cell, metrics), 0);
  if (alignment == CellAlignment::kCentre) take(spare / 2);
  if (alignment == CellAlignment::kTrailing) take(spare);
  const QColor color = ColorOf(cell.tone, ground, colors);
  if (cell.mark != CellMark::kNone) {
    const int side = MarkSide();
    const QRect mark = take(side);
    PaintGlyph(painter, GlyphOf(cell.mark),
               QRectF(mark.left(), mark.top() + (mark.height() - side) / 2, side, side), color, color);
    take(kGap);
  }
  if (cell.text.empty() || room.width() <= 0) return;
  painter.setFont(font);
  painter.setPen(color);
  const int sides = is_mirrored ? Qt::AlignRight : Qt::AlignLeft;
  painter.drawText(room, sides | Qt::AlignVCenter | Qt::AlignAbsolute | Qt::TextSingleLine,
                   metrics.elidedText(LineOf(cell), Qt::ElideRight, room.width()));
}

}  // namespace ferrowind::qt
