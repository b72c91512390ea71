#include "ferrowind/adapters/qt/look/mark_glyphs.h"

#include "ferrowind/adapters/qt/look/glyph_paths.h"

namespace ferrowind::qt {
namespace {

constexpr QPointF kMiddle(12, 12);
constexpr qreal kRadius = 9;

Glyph Circle() {
  Glyph glyph;
  glyph.lines.addEllipse(kMiddle, kRadius, kRadius);
  return glyph;
}

}  // namespace

Glyph CheckedCircleGlyph() {
  // A full circle that leaves the check out.
  Glyph glyph;
  QPainterPath check;
  AddCheck(check, 7.3, 12.6, 9.4);
  QPainterPathStroker stroker;
  stroker.setWidth(2.6);
  stroker.setCapStyle(Qt::RoundCap);
  stroker.setJoinStyle(Qt::RoundJoin);
  QPainterPath disc;
  disc.addEllipse(kMiddle, kRadius + 1, kRadius + 1);
  glyph.solids = disc.subtracted(stroker.createStroke(check));
  return glyph;
}

Glyph UnequalGlyph() {
  Glyph glyph;
  AddLine(glyph.lines, {{4, 9}, {20, 9}});
  AddLine(glyph.lines, {{4, 15}, {20, 15}});
  AddLine(glyph.lines, {{16, 4}, {8, 20}});
  return glyph;
}

Glyph HalfCircleGlyph() {
  Glyph glyph = Circle();
  glyph.solids.moveTo(12, 3);
  glyph.solids.arcTo(3, 3, 18, 18, 90, 180);
  glyph.solids.closeSubpath();
  return glyph;
}

Glyph EmptyCircleGlyph() { return Circle(); }

Glyph NoteGlyph() {
  Glyph glyph = Circle();
  AddLine(glyph.lines, {{12, 11}, {12, 16.5}});
  glyph.solids.addEllipse(QPointF(12, 7.6), 1.4, 1.4);
  return glyph;
}

Glyph TriangleGlyph() {
  Glyph glyph;
  AddLine(glyph.lines, {{12, 3}, {22, 20.5}, {2, 20.5}, {12, 3}});
  AddLine(glyph.lines, {{12, 10}, {12, 14.5}});
  glyph.solids.addEllipse(QPointF(12, 17.7), 1.3, 1.3);
  return glyph;
}

Glyph OctagonGlyph() {
  Glyph glyph;
  AddLine(glyph.lines,
          {{8, 2.5}, {16, 2.5}, {21.5, 8}, {21.5, 16}, {16, 21.5}, {8, 21.5}, {2.5, 16}, {2.5, 8}, {8, 2.5}});
  AddCross(glyph.lines, 12, 12, 3.6);
  return glyph;
}

Glyph PlusGlyph() {
  Glyph glyph;
  AddPlus(glyph.lines, 12, 12, 7.5);
  return glyph;
}

Glyph MinusGlyph() {
  Glyph glyph;
  AddMinus(glyph.lines, 12, 12, 7.5);
  return glyph;
}

Glyph TwoArrowsGlyph() {
  Glyph glyph;
  AddLine(glyph.lines, {{3.5, 8}, {20.5, 8}, {16, 3.5}});
  AddLine(glyph.lines, {{20.5, 16}, {3.5, 16}, {8, 20.5}});
  return glyph;
}

Glyph EqualGlyph() {
  Glyph glyph;
  AddLine(glyph.lines, {{4.5, 9}, {19.5, 9}});
  AddLine(glyph.lines, {{4.5, 15}, {19.5, 15}});
  return glyph;
}

Glyph CrossGlyph() {
  Glyph glyph;
  AddCross(glyph.lines, 12, 12, 6.5);
  return glyph;
}

Glyph RingGlyph() {
  Glyph glyph = Circle();
  glyph.solids.addEllipse(kMiddle, 4, 4);
  return glyph;
}

}  // namespace ferrowind::qt
