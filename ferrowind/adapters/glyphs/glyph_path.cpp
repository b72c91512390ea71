#include "ferrowind/adapters/glyphs/glyph_path.h"

#include <cmath>
#include <numbers>

namespace ferrowind::glyphs {
namespace {

/// How far, in radii, a curve is drawn along a quarter of a circle to come near it.
constexpr double kQuarter = 0.5522847498;

}  // namespace

void GlyphPath::AddLine(std::initializer_list<Point> points) {
  MoveTo(*points.begin());
  for (const Point* point = points.begin() + 1; point != points.end(); ++point) LineTo(*point);
}

void GlyphPath::AddRectangle(double left, double top, double width, double height) {
  AddLine({{left, top}, {left + width, top}, {left + width, top + height}, {left, top + height}});
  Close();
}

void GlyphPath::AddRoundedRectangle(double left, double top, double width, double height, double radius) {
  const double right = left + width;
  const double bottom = top + height;
  const double rest = radius * (1 - kQuarter);
  MoveTo({left + radius, top});
  LineTo({right - radius, top});
  CurveTo({right - rest, top}, {right, top + rest}, {right, top + radius});
  LineTo({right, bottom - radius});
  CurveTo({right, bottom - rest}, {right - rest, bottom}, {right - radius, bottom});
  LineTo({left + radius, bottom});
  CurveTo({left + rest, bottom}, {left, bottom - rest}, {left, bottom - radius});
  LineTo({left, top + radius});
  CurveTo({left, top + rest}, {left + rest, top}, {left + radius, top});
  Close();
}

void GlyphPath::AddEllipse(Point middle, double across, double down) {
  const auto at = [&](double x, double y) { return Point{middle.x + x * across, middle.y + y * down}; };
  MoveTo(at(1, 0));
  CurveTo(at(1, kQuarter), at(kQuarter, 1), at(0, 1));
  CurveTo(at(-kQuarter, 1), at(-1, kQuarter), at(-1, 0));
  CurveTo(at(-1, -kQuarter), at(-kQuarter, -1), at(0, -1));
  CurveTo(at(kQuarter, -1), at(1, -kQuarter), at(1, 0));
  Close();
}

void GlyphPath::AddArc(Point middle, double radius, double start, double sweep) {
  constexpr double kMostDegrees = 90;
  const int parts = static_cast<int>(std::ceil(std::abs(sweep) / kMostDegrees));
  const double turn = sweep / parts * std::numbers::pi / 180;
  const double pull = 4.0 / 3.0 * std::tan(turn / 4) * radius;
  double angle = start * std::numbers::pi / 180;
  const auto on_circle = [&] {
    return Point{middle.x + radius * std::cos(angle), middle.y - radius * std::sin(angle)};
  };
  // Along the circle from that point, or against where `length` is negative.
  const auto beside = [&](Point point, double length) {
    return Point{point.x - length * std::sin(angle), point.y - length * std::cos(angle)};
  };
  MoveTo(on_circle());
  for (int part = 0; part < parts; ++part) {
    const Point first = beside(on_circle(), pull);
    angle += turn;
    CurveTo(first, beside(on_circle(), -pull), on_circle());
  }
}

}  // namespace ferrowind::glyphs
