#include "ferrowind/adapters/qt/grid/row_painter.h"

#include <QPainter>
#include <QPolygonF>

#include "ferrowind/adapters/qt/look/blend.h"

namespace ferrowind::qt {

using grid_engine::GroupId;
using grid_engine::Record;

namespace {

constexpr int kCellPadding = 7;
constexpr int kGroupIndent = 20;
constexpr int kExpanderWidth = 20;
constexpr int kGroupGap = 5;
constexpr double kDisabledStrength = 0.45;

}  // namespace

void PaintTriangle(QPainter& painter, const QRectF& area, Pointing pointing, const QColor& color) {
  const QPointF middle = area.center();
  const qreal reach = std::min(area.width(), area.height()) / 2;
  const qreal depth = reach * 0.62;
  QPolygonF triangle;
  switch (pointing) {
    case Pointing::kDown:
      triangle << QPointF(-reach, -depth) << QPointF(reach, -depth) << QPointF(0, depth);
      break;
    case Pointing::kUp:
      triangle << QPointF(-reach, depth) << QPointF(reach, depth) << QPointF(0, -depth);
      break;
    case Pointing::kRight:
      triangle << QPointF(-depth, -reach) << QPointF(-depth, reach) << QPointF(depth, 0);
      break;
    case Pointing::kLeft:
      triangle << QPointF(depth, -reach) << QPointF(depth, reach) << QPointF(-depth, 0);
      break;
  }
  triangle.translate(middle);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  painter.drawPolygon(triangle);
  painter.restore();
}

unsigned char RowPainter::StyleOf(const grid_content::RowLook& look) {
  unsigned char style = TextCache::kPlain;
  if (look.is_bold) style |= TextCache::kBold;
  if (look.is_struck_through) style |= TextCache::kStruckThrough;
  return style;
}

QColor RowPainter::GroundOf(const RowState& state) const {
  if (state.is_selected) return state.is_current ? colors_.current : colors_.selected;
  return state.is_odd ? colors_.alternate : colors_.base;
}

void RowPainter::PaintRecord(QPainter& painter, const QRect& row, const std::vector<ShownColumn>& columns,
                             Record record, const RowState& state) const {
  const QColor ground = GroundOf(state);
  painter.fillRect(row, ground);
  const grid_content::RowLook look = content_.LookOf(record);
  const unsigned char style = StyleOf(look);
  QColor text = colors_.text;
  if (look.fore_color) {
    const QColor given(look.fore_color->red, look.fore_color->green, look.fore_color->blue);
    // Rows of both shades show the same colour: the one that is readable on the worse of them.
    text = colors_.is_enabled ? ReadableOn(state.is_selected ? ground : colors_.alternate, given)
                              : Blend(ground, given, kDisabledStrength);
  }
  painter.setPen(text);
  for (const ShownColumn& column : columns) {
    const QRect cell(column.left, row.top(), column.width, row.height());
    PaintCell(painter, cell.adjusted(kCellPadding, 0, -kCellPadding, -1), column.index, record, style);
  }
  painter.fillRect(QRect(row.left(), row.bottom(), row.width(), 1), colors_.line);
}

void RowPainter::PaintCurrentMark(QPainter& painter, const QRect& row,
                                  const std::vector<ShownColumn>& columns, std::int16_t focus_column) const {
  PaintFrame(painter, row, 1);
  for (const ShownColumn& column : columns) {
    if (column.index == focus_column)
      PaintFrame(painter, QRect(column.left, row.top(), column.width, row.height()), 2);
  }
}

void RowPainter::PaintCurrentGroupMark(QPainter& painter, const QRect& row, bool has_focus) const {
  PaintFrame(painter, row, has_focus ? 2 : 1);
}

void RowPainter::PaintFrame(QPainter& painter, const QRect& area, int width) const {
  const QColor& color = colors_.current_frame;
  painter.fillRect(QRect(area.left(), area.top(), area.width(), width), color);
  painter.fillRect(QRect(area.left(), area.bottom() + 1 - width, area.width(), width), color);
  painter.fillRect(QRect(area.left(), area.top(), width, area.height()), color);
  painter.fillRect(QRect(area.right() + 1 - width, area.top(), width, area.height()), color);
}

void RowPainter::PaintColumnLines(QPainter& painter, const std::vector<ShownColumn>& columns, int top,
                                  int height) const {
  for (const ShownColumn& column : columns) {
    painter.fillRect(QRect(column.left + column.width - 1, top, 1, height), colors_.line);
  }
}

void RowPainter::PaintCell(QPainter& painter, const QRect& cell, std::int16_t column, Record record,
                           unsigned char style) const {
  const bool is_number = content_.Cells().ShowsNumber(column, record);
  const bool is_mirrored = painter.layoutDirection() == Qt::RightToLeft;
  texts_.Draw(painter, cell, is_number != is_mirrored ? Qt::AlignRight : Qt::AlignLeft,
              content_.Cells().ShownText(column, record), style);
}

void RowPainter::PaintGroup(QPainter& painter, const QRect& row, GroupId group, const RowState& state) const {
  painter.fillRect(row, state.is_selected ? GroundOf(state) : colors_.group);
  painter.fillRect(QRect(row.left(), row.bottom(), row.width(), 1), colors_.line);
  const bool is_expanded = content_.Rows().Groups().IsExpanded(group);
  const QRect expander = ExpanderArea(row, group.level, painter.layoutDirection());
  const QPoint middle = expander.center();
  const bool is_mirrored = painter.layoutDirection() == Qt::RightToLeft;
  const Pointing closed = is_mirrored ? Pointing::kLeft : Pointing::kRight;
  PaintTriangle(painter, QRectF(middle.x() - 4, middle.y() - 4, 8, 8), is_expanded ? Pointing::kDown : closed,
                colors_.muted);

  const GroupLabel label = content_.LabelOf(group);
  QRect rest = row.adjusted(0, 0, 0, -1);
  const auto draw = [&](const QString& text, const QColor& color, unsigned char style) {
    painter.setPen(color);
    const int drawn =
        texts_.Draw(painter, rest, is_mirrored ? Qt::AlignRight : Qt::AlignLeft, text, style) + kGroupGap;
    if (is_mirrored) {
      rest.setRight(rest.right() - drawn);
    } else {
      rest.setLeft(rest.left() + drawn);
    }
  };
  if (is_mirrored) {
    rest.setRight(expander.left() - 1);
  } else {
    rest.setLeft(expander.right() + 1);
  }
  draw(label.caption + QLatin1Char(':'), colors_.muted, TextCache::kPlain);
  draw(label.value, colors_.text, TextCache::kBold);
  draw(QLatin1Char('(') + QString::number(label.record_count) + QLatin1Char(')'), colors_.muted,
       TextCache::kPlain);
}

QString RowPainter::CutText(Record record, std::int16_t column, int width) const {
  const QString text = content_.Cells().ShownText(column, record);
  const int room = width - 2 * kCellPadding;
  return texts_.WidthOf(text, StyleOf(content_.LookOf(record))) > room ? text : QString();
}

QString RowPainter::CutText(GroupId group, int width) const {
  const GroupLabel label = content_.LabelOf(group);
  const QString caption = label.caption + QLatin1Char(':');
  const QString count = QLatin1Char('(') + QString::number(label.record_count) + QLatin1Char(')');
  const int needed = static_cast<int>(group.level) * kGroupIndent + kExpanderWidth + texts_.WidthOf(caption) +
                     texts_.WidthOf(label.value, TextCache::kBold) + texts_.WidthOf(count) + 2 * kGroupGap;
  return needed > width ? caption + QLatin1Char(' ') + label.value + QLatin1Char(' ') + count : QString();
}

QRect RowPainter::ExpanderArea(const QRect& row, std::uint32_t level, Qt::LayoutDirection direction) {
  const int indent = static_cast<int>(level) * kGroupIndent;
  if (direction == Qt::RightToLeft) {
    return {row.right() - indent - kExpanderWidth + 1, row.top(), kExpanderWidth, row.height()};
  }
  return {row.left() + indent, row.top(), kExpanderWidth, row.height()};
}

}  // namespace ferrowind::qt
