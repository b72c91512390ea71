#include "ferrowind/adapters/qt/look/glyph_painter.h"

#include <QPainterPath>
#include <algorithm>

namespace ferrowind::qt {

using glyphs::GlyphPath;

namespace {

QPainterPath ToQt(const GlyphPath& path) {
  const auto point = [](const glyphs::Point& place) { return QPointF(place.x, place.y); };
  QPainterPath converted;
  for (const auto& [kind, points] : path.Steps()) {
    switch (kind) {
      case GlyphPath::StepKind::kMove:
        converted.moveTo(point(points[2]));
        break;
      case GlyphPath::StepKind::kLine:
        converted.lineTo(point(points[2]));
        break;
      case GlyphPath::StepKind::kCurve:
        converted.cubicTo(point(points[0]), point(points[1]), point(points[2]));
        break;
      case GlyphPath::StepKind::kClose:
        converted.closeSubpath();
        break;
    }
  }
  return converted;
}

void Draw(QPainter& painter, const GlyphPath& lines, const GlyphPath& solids, const QColor& color,
          qreal width) {
  painter.strokePath(ToQt(lines), QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.fillPath(ToQt(solids), color);
}

}  // namespace

void PaintGlyph(QPainter& painter, const glyphs::Glyph& glyph, const QRectF& area, const QColor& line,
                const QColor& accent) {
  const qreal side = std::min(area.width(), area.height());
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(area.center() - QPointF(side / 2, side / 2));
  painter.scale(side / glyphs::kSide, side / glyphs::kSide);
  const qreal width = glyphs::LineWidthIn(side);
  Draw(painter, glyph.lines, glyph.solids, line, width);
  Draw(painter, glyph.accent_lines, glyph.accent_solids, accent, width);
  painter.restore();
}

}  // namespace ferrowind::qt
