#include "ferrowind/adapters/qt/year/day_marks.h"

#include <QPolygonF>

namespace ferrowind::qt {

using platform::DayShape;

void DrawDayMark(QPainter& painter, const QRectF& box, DayShape shape, const QColor& color) {
  if (shape == DayShape::kNone || shape == DayShape::kHatching) return;
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  switch (shape) {
    case DayShape::kBar:
      painter.drawRect(QRectF(box.left() - box.width() / 2, box.bottom() - box.height() * 0.4,
                              box.width() * 2, box.height() * 0.4));
      break;
    case DayShape::kSquare:
      painter.drawRect(
          box.adjusted(box.width() * 0.08, box.height() * 0.08, -box.width() * 0.08, -box.height() * 0.08));
      break;
    case DayShape::kDiamond:
      painter.drawPolygon(
          QPolygonF({QPointF(box.center().x(), box.top()), QPointF(box.right(), box.center().y()),
                     QPointF(box.center().x(), box.bottom()), QPointF(box.left(), box.center().y())}));
      break;
    case DayShape::kTriangle:
      painter.drawPolygon(
          QPolygonF({QPointF(box.center().x(), box.top()), box.bottomRight(), box.bottomLeft()}));
      break;
    case DayShape::kNone:
    case DayShape::kHatching:
      break;
  }
}

void DrawHatching(QPainter& painter, const QRectF& area, const QColor& color) {
  constexpr int kStripes = 3;
  const qreal step = area.height() / kStripes;
  painter.save();
  painter.setClipRect(area, Qt::IntersectClip);
  painter.setPen(QPen(color, step / 8));
  for (qreal x = area.left() - area.height(); x < area.right(); x += step) {
    painter.drawLine(QPointF(x, area.bottom()), QPointF(x + area.height(), area.top()));
  }
  painter.restore();
}

}  // namespace ferrowind::qt
