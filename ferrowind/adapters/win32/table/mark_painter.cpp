#include "ferrowind/adapters/win32/table/mark_painter.h"

#include <utility>
#include <vector>

#include "ferrowind/adapters/win32/controls/shapes.h"

namespace ferrowind::win32 {
namespace {

using platform::CellMark;

/// Draws in a square of 24 units.
class Pencil {
 public:
  Pencil(HDC context, POINT place, LONG side, COLORREF color)
      : shapes_(context),
        left_(static_cast<double>(place.x)),
        top_(static_cast<double>(place.y)),
        unit_(static_cast<double>(side) / kUnits),
        color_(color) {}

  void Line(std::vector<ShapePoint> points, double width = kLine) {
    shapes_.Line(Placed(std::move(points)), width * unit_, color_);
  }
  void Fill(std::vector<ShapePoint> polygon) { shapes_.Fill(Placed(std::move(polygon)), color_); }
  void Disc(double x, double y, double radius) {
    shapes_.Disc(At({x, y}), radius * unit_, radius * unit_, color_);
  }
  void Circle() { shapes_.Ring(At({kMiddle, kMiddle}), 9 * unit_, 9 * unit_, kLine * unit_, color_); }
  void HalfDisc() { shapes_.HalfDisc(At({kMiddle, kMiddle}), 9 * unit_, color_); }
  void Use(COLORREF color) { color_ = color; }

 private:
  static constexpr double kUnits = 24;
  static constexpr double kMiddle = 12;
  static constexpr double kLine = 2;

  [[nodiscard]] ShapePoint At(const ShapePoint& point) const {
    return {left_ + point.x * unit_, top_ + point.y * unit_};
  }
  [[nodiscard]] std::vector<ShapePoint> Placed(std::vector<ShapePoint> points) const {
    for (ShapePoint& point : points) point = At(point);
    return points;
  }

  Shapes shapes_;
  double left_;
  double top_;
  double unit_;
  COLORREF color_;
};

void DrawSigns(Pencil& pencil, CellMark mark) {
  switch (mark) {
    case CellMark::kDiffers:
      pencil.Line({{4, 9}, {20, 9}});
      pencil.Line({{4, 15}, {20, 15}});
      pencil.Line({{16, 4}, {8, 20}});
      break;
    case CellMark::kAdded:
      pencil.Line({{4.5, 12}, {19.5, 12}});
      pencil.Line({{12, 4.5}, {12, 19.5}});
      break;
    case CellMark::kRemoved:
      pencil.Line({{4.5, 12}, {19.5, 12}});
      break;
    case CellMark::kReplaced:
      pencil.Line({{3.5, 8}, {20.5, 8}, {16, 3.5}});
      pencil.Line({{20.5, 16}, {3.5, 16}, {8, 20.5}});
      break;
    case CellMark::kKept:
      pencil.Line({{4.5, 9}, {19.5, 9}});
      pencil.Line({{4.5, 15}, {19.5, 15}});
      break;
    case CellMark::kException:
      pencil.Line({{5.5, 5.5}, {18.5, 18.5}});
      pencil.Line({{18.5, 5.5}, {5.5, 18.5}});
      break;
    default:
      break;
  }
}

}  // namespace

void PaintMark(HDC context, POINT place, LONG side, CellMark mark, COLORREF color, COLORREF ground) {
  if (mark == CellMark::kNone) return;
  Pencil pencil(context, place, side, color);
  switch (mark) {
    case CellMark::kPrepared:
      pencil.Disc(12, 12, 10);
      pencil.Use(ground);
      pencil.Line({{7.3, 12.6}, {10.6, 16}, {16.7, 8.6}}, 2.6);
      break;
    case CellMark::kPartly:
      pencil.Circle();
      pencil.HalfDisc();
      break;
    case CellMark::kMissing:
      pencil.Circle();
      break;
    case CellMark::kNote:
      pencil.Circle();
      pencil.Line({{12, 11}, {12, 16.5}});
      pencil.Disc(12, 7.6, 1.4);
      break;
    case CellMark::kWarning:
      pencil.Line({{12, 3}, {22, 20.5}, {2, 20.5}, {12, 3}});
      pencil.Line({{12, 10}, {12, 14.5}});
      pencil.Disc(12, 17.7, 1.3);
      break;
    case CellMark::kError:
      pencil.Line(
          {{8, 2.5}, {16, 2.5}, {21.5, 8}, {21.5, 16}, {16, 21.5}, {8, 21.5}, {2.5, 16}, {2.5, 8}, {8, 2.5}});
      pencil.Line({{8.4, 8.4}, {15.6, 15.6}});
      pencil.Line({{15.6, 8.4}, {8.4, 15.6}});
      break;
    case CellMark::kToday:
      pencil.Circle();
      pencil.Disc(12, 12, 4);
      break;
    default:
      DrawSigns(pencil, mark);
      break;
  }
}

void PaintCheckBox(HDC context, POINT place, LONG side, bool is_checked, COLORREF color, COLORREF ground) {
  Pencil pencil(context, place, side, color);
  pencil.Line({{3, 3}, {21, 3}, {21, 21}, {3, 21}, {3, 3}});
  if (!is_checked) return;
  pencil.Fill({{3, 3}, {21, 3}, {21, 21}, {3, 21}});
  pencil.Use(ground);
  pencil.Line({{7, 12.4}, {10.6, 16.2}, {17, 8}}, 2.6);
}

}  // namespace ferrowind::win32
