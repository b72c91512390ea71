#include "ferrowind/adapters/glyphs/glyph_paths.h"

#include <array>
#include <cmath>

namespace ferrowind::glyphs {
namespace {

/// Left end, corner and right end.
std::array<Point, 3> CheckPoints(double x, double y, double size) {
  constexpr double kDown = 0.38;
  return {{{x, y}, {x + size * kDown, y + size * kDown}, {x + size, y - size * kDown}}};
}

/// Of length 1, to the right of the way from one point to the other.
Point Across(Point from, Point to) {
  const double length = std::hypot(to.x - from.x, to.y - from.y);
  return {(from.y - to.y) / length, (to.x - from.x) / length};
}

}  // namespace

void AddPlus(GlyphPath& path, double x, double y, double arm) {
  path.AddLine({{x - arm, y}, {x + arm, y}});
  path.AddLine({{x, y - arm}, {x, y + arm}});
}

void AddMinus(GlyphPath& path, double x, double y, double arm) { path.AddLine({{x - arm, y}, {x + arm, y}}); }

void AddCross(GlyphPath& path, double x, double y, double arm) {
  path.AddLine({{x - arm, y - arm}, {x + arm, y + arm}});
  path.AddLine({{x + arm, y - arm}, {x - arm, y + arm}});
}

void AddCheck(GlyphPath& path, double x, double y, double size) {
  const auto [left, corner, right] = CheckPoints(x, y, size);
  path.AddLine({left, corner, right});
}

void AddCheckOutline(GlyphPath& path, double x, double y, double size, double width) {
  const auto [left, corner, right] = CheckPoints(x, y, size);
  const double half = width / 2;
  const Point down = Across(left, corner);
  const Point up = Across(corner, right);
  const double reach = half / (1 + down.x * up.x + down.y * up.y);
  const auto moved = [](Point point, Point way, double length) {
    return Point{point.x + way.x * length, point.y + way.y * length};
  };
  const Point both{down.x + up.x, down.y + up.y};
  path.AddLine({moved(left, down, half), moved(corner, both, reach), moved(right, up, half),
                moved(right, up, -half), moved(corner, both, -reach), moved(left, down, -half)});
  path.Close();
}

}  // namespace ferrowind::glyphs
