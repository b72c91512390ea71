#include "ferrowind/adapters/qt/look/glyph_paths.h"

namespace ferrowind::qt {

void AddLine(QPainterPath& path, std::initializer_list<QPointF> points) {
  path.moveTo(*points.begin());
  for (const QPointF* point = points.begin() + 1; point != points.end(); ++point) path.lineTo(*point);
}

void AddPlus(QPainterPath& path, qreal x, qreal y, qreal arm) {
  AddLine(path, {{x - arm, y}, {x + arm, y}});
  AddLine(path, {{x, y - arm}, {x, y + arm}});
}

void AddMinus(QPainterPath& path, qreal x, qreal y, qreal arm) {
  AddLine(path, {{x - arm, y}, {x + arm, y}});
}

void AddCross(QPainterPath& path, qreal x, qreal y, qreal arm) {
  AddLine(path, {{x - arm, y - arm}, {x + arm, y + arm}});
  AddLine(path, {{x + arm, y - arm}, {x - arm, y + arm}});
}

void AddCheck(QPainterPath& path, qreal x, qreal y, qreal size) {
  AddLine(path, {{x, y}, {x + size * 0.38, y + size * 0.38}, {x + size, y - size * 0.38}});
}

}  // namespace ferrowind::qt
