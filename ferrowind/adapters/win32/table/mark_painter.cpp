#include "ferrowind/adapters/win32/table/mark_painter.h"

#include <vector>

#include "ferrowind/adapters/glyphs/mark_glyphs.h"
#include "ferrowind/adapters/win32/controls/glyph_pictures.h"
#include "ferrowind/adapters/win32/controls/shapes.h"

namespace ferrowind::win32 {

void PaintMark(HDC context, POINT place, LONG side, platform::CellMark mark, COLORREF color) {
  if (mark == platform::CellMark::kNone) return;
  PaintGlyph(context, place, static_cast<int>(side), glyphs::MarkGlyph(mark), {color, color});
}

void PaintCheckBox(HDC context, POINT place, LONG side, bool is_checked, COLORREF color, COLORREF ground) {
  const double unit = static_cast<double>(side) / glyphs::kSide;
  const auto placed = [&](std::vector<ShapePoint> points) {
    for (ShapePoint& point : points)
      point = {static_cast<double>(place.x) + point.x * unit, static_cast<double>(place.y) + point.y * unit};
    return points;
  };
  const auto box = placed({{3, 3}, {21, 3}, {21, 21}, {3, 21}, {3, 3}});
  Shapes shapes(context);
  shapes.Line(box, 2 * unit, color);
  if (!is_checked) return;
  shapes.Fill(box, color);
  shapes.Line(placed({{7, 12.4}, {10.6, 16.2}, {17, 8}}), 2.6 * unit, ground);
}

}  // namespace ferrowind::win32
