#include "ferrowind/adapters/glyphs/glyph_path.h"

#include <cmath>

#include <gtest/gtest.h>

namespace ferrowind::glyphs {
namespace {

constexpr double kNear = 1e-6;

/// Where a curve is, by how much of it is behind: from 0 to 1.
Point OnCurve(Point from, const GlyphPath::Step& curve, double part) {
  const double rest = 1 - part;
  const auto mixed = [&](double a, double b, double c, double d) {
    return rest * rest * rest * a + 3 * rest * rest * part * b + 3 * rest * part * part * c +
           part * part * part * d;
  };
  const auto& [first, second, end] = curve.points;
  return {mixed(from.x, first.x, second.x, end.x), mixed(from.y, first.y, second.y, end.y)};
}

/// Each curve of the path keeps that distance from the middle.
void ExpectRound(const GlyphPath& path, Point middle, double radius) {
  Point now;
  int curves = 0;
  for (const GlyphPath::Step& step : path.Steps()) {
    if (step.kind == GlyphPath::StepKind::kCurve) {
      ++curves;
      for (const double part : {0.0, 0.25, 0.5, 0.75, 1.0}) {
        const Point place = OnCurve(now, step, part);
        EXPECT_NEAR(std::hypot(place.x - middle.x, place.y - middle.y), radius, radius * 0.001);
      }
    }
    if (step.kind != GlyphPath::StepKind::kClose) now = step.points[2];
  }
  EXPECT_GT(curves, 0);
}

TEST(GlyphPathTest, GoesThroughThePointsOfALine) {
  GlyphPath path;
  path.AddLine({{1, 2}, {3, 4}, {5, 6}});
  ASSERT_EQ(path.Steps().size(), 3U);
  EXPECT_EQ(path.Steps()[0].kind, GlyphPath::StepKind::kMove);
  EXPECT_EQ(path.Steps()[2].kind, GlyphPath::StepKind::kLine);
  EXPECT_EQ(path.Steps()[2].points[2].x, 5);
  EXPECT_EQ(path.Steps()[2].points[2].y, 6);
}

TEST(GlyphPathTest, DrawsCircles) {
  GlyphPath path;
  path.AddEllipse({12, 11}, 9, 9);
  ExpectRound(path, {12, 11}, 9);
}

TEST(GlyphPathTest, DrawsPartsOfCirclesBothWays) {
  GlyphPath counter_clockwise;
  counter_clockwise.AddArc({12, 12}, 8, 90, 180);
  ExpectRound(counter_clockwise, {12, 12}, 8);
  // From the top over the left to the bottom.
  EXPECT_NEAR(counter_clockwise.Steps().front().points[2].y, 4, kNear);
  EXPECT_NEAR(counter_clockwise.Steps()[1].points[2].x, 4, kNear);
  EXPECT_NEAR(counter_clockwise.Steps().back().points[2].y, 20, kNear);

  GlyphPath clockwise;
  clockwise.AddArc({12, 12}, 8, 160, -300);
  ExpectRound(clockwise, {12, 12}, 8);
  EXPECT_NEAR(clockwise.Steps().back().points[2].x, 12 + 8 * std::cos(-140 * 3.14159265358979 / 180), kNear);
}

TEST(GlyphPathTest, RoundsTheCornersOfARectangle) {
  GlyphPath path;
  path.AddRoundedRectangle(3, 4, 18, 16, 2);
  EXPECT_EQ(path.Steps().back().kind, GlyphPath::StepKind::kClose);
  // The first corner is the one at the upper right.
  const GlyphPath::Step& corner = path.Steps()[2];
  ASSERT_EQ(corner.kind, GlyphPath::StepKind::kCurve);
  const Point middle = OnCurve(path.Steps()[1].points[2], corner, 0.5);
  EXPECT_NEAR(std::hypot(middle.x - 19, middle.y - 6), 2, 0.002);
}

}  // namespace
}  // namespace ferrowind::glyphs
