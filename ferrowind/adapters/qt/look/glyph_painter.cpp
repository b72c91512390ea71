#include "ferrowind/adapters/qt/look/glyph_painter.h"

#include <algorithm>

namespace ferrowind::qt {
namespace {

constexpr qreal kUnits = 24;
constexpr qreal kLineWidth = 1.6;
/// Below this a line would look grey rather than thin.
constexpr qreal kThinnestPixels = 1.25;

void Draw(QPainter& painter, const QPainterPath& lines, const QPainterPath& solids, const QColor& color,
          qreal side) {
  const qreal width = std::max(kLineWidth, kThinnestPixels * kUnits / side);
  painter.strokePath(lines, QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.fillPath(solids, color);
}

}  // namespace

void PaintGlyph(QPainter& painter, const Glyph& glyph, const QRectF& area, const QColor& line,
                const QColor& accent) {
  const qreal side = std::min(area.width(), area.height());
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(area.center() - QPointF(side / 2, side / 2));
  painter.scale(side / kUnits, side / kUnits);
  Draw(painter, glyph.lines, glyph.solids, line, side);
  Draw(painter, glyph.accent_lines, glyph.accent_solids, accent, side);
  painter.restore();
}

}  // namespace ferrowind::qt
