#include "ferrowind/adapters/win32/year/year_painter.h"

namespace ferrowind::win32 {

using platform::DayShape;
using year_engine::Area;

void DrawDayMark(Shapes& shapes, const Area& box, DayShape shape, COLORREF color) {
  switch (shape) {
    case DayShape::kBar: {
      const double left = box.left - box.width / 2;
      const double right = box.Right() + box.width / 2;
      const double top = box.Bottom() - box.height * 0.4;
      shapes.Fill({{left, top}, {right, top}, {right, box.Bottom()}, {left, box.Bottom()}}, color);
      break;
    }
    case DayShape::kSquare: {
      const double inset = box.width * 0.08;
      shapes.Fill({{box.left + inset, box.top + inset},
                   {box.Right() - inset, box.top + inset},
                   {box.Right() - inset, box.Bottom() - inset},
                   {box.left + inset, box.Bottom() - inset}},
                  color);
      break;
    }
    case DayShape::kDiamond:
      shapes.Fill({{box.Middle().x, box.top},
                   {box.Right(), box.Middle().y},
                   {box.Middle().x, box.Bottom()},
                   {box.left, box.Middle().y}},
                  color);
      break;
    case DayShape::kTriangle:
      shapes.Fill({{box.Middle().x, box.top}, {box.Right(), box.Bottom()}, {box.left, box.Bottom()}}, color);
      break;
    case DayShape::kNone:
    case DayShape::kHatching:
      break;
  }
}

void DrawHatching(Shapes& shapes, const RECT& area, COLORREF color) {
  constexpr int kStripes = 3;
  const auto height = static_cast<double>(area.bottom - area.top);
  const double step = height / kStripes;
  shapes.Clip(area);
  for (double x = static_cast<double>(area.left) - height; x < static_cast<double>(area.right); x += step)
    shapes.Line({{x, static_cast<double>(area.bottom)}, {x + height, static_cast<double>(area.top)}},
                step / 8, color);
  shapes.ClipNothing();
}

}  // namespace ferrowind::win32
