#include "ferrowind/adapters/glyphs/mark_glyphs.h"

#include <array>
#include <cstddef>

#include "ferrowind/adapters/glyphs/glyph_paths.h"

namespace ferrowind::glyphs {
namespace {

constexpr Point kMiddle{12, 12};
constexpr double kRadius = 9;

Glyph Circle() {
  Glyph glyph;
  glyph.lines.AddEllipse(kMiddle, kRadius, kRadius);
  return glyph;
}

Glyph CheckedCircleGlyph() {
  // A full circle that leaves the check out.
  Glyph glyph;
  glyph.solids.AddEllipse(kMiddle, kRadius + 1, kRadius + 1);
  AddCheckOutline(glyph.solids, 7.3, 12.6, 9.4, 2.6);
  return glyph;
}

Glyph UnequalGlyph() {
  Glyph glyph;
  glyph.lines.AddLine({{4, 9}, {20, 9}});
  glyph.lines.AddLine({{4, 15}, {20, 15}});
  glyph.lines.AddLine({{16, 4}, {8, 20}});
  return glyph;
}

Glyph HalfCircleGlyph() {
  Glyph glyph = Circle();
  glyph.solids.AddArc(kMiddle, kRadius, 90, 180);
  glyph.solids.Close();
  return glyph;
}

Glyph EmptyCircleGlyph() { return Circle(); }

Glyph NoteGlyph() {
  Glyph glyph = Circle();
  glyph.lines.AddLine({{12, 11}, {12, 16.5}});
  glyph.solids.AddEllipse({12, 7.6}, 1.4, 1.4);
  return glyph;
}

Glyph TriangleGlyph() {
  Glyph glyph;
  glyph.lines.AddLine({{12, 3}, {22, 20.5}, {2, 20.5}, {12, 3}});
  glyph.lines.AddLine({{12, 10}, {12, 14.5}});
  glyph.solids.AddEllipse({12, 17.7}, 1.3, 1.3);
  return glyph;
}

Glyph OctagonGlyph() {
  Glyph glyph;
  glyph.lines.AddLine(
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
  glyph.lines.AddLine({{3.5, 8}, {20.5, 8}, {16, 3.5}});
  glyph.lines.AddLine({{20.5, 16}, {3.5, 16}, {8, 20.5}});
  return glyph;
}

Glyph EqualGlyph() {
  Glyph glyph;
  glyph.lines.AddLine({{4.5, 9}, {19.5, 9}});
  glyph.lines.AddLine({{4.5, 15}, {19.5, 15}});
  return glyph;
}

Glyph CrossGlyph() {
  Glyph glyph;
  AddCross(glyph.lines, 12, 12, 6.5);
  return glyph;
}

Glyph RingGlyph() {
  Glyph glyph = Circle();
  glyph.solids.AddEllipse(kMiddle, 4, 4);
  return glyph;
}

}  // namespace

const Glyph& MarkGlyph(platform::CellMark mark) {
  static const std::array glyphs = {
      Glyph(),          CheckedCircleGlyph(), UnequalGlyph(), HalfCircleGlyph(), EmptyCircleGlyph(),
      NoteGlyph(),      TriangleGlyph(),      OctagonGlyph(), PlusGlyph(),       MinusGlyph(),
      TwoArrowsGlyph(), EqualGlyph(),         CrossGlyph(),   RingGlyph(),
  };
  return glyphs.at(static_cast<std::size_t>(mark));
}

}  // namespace ferrowind::glyphs
