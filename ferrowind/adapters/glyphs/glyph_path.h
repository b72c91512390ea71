#pragma once

#include <array>
#include <initializer_list>
#include <vector>

namespace ferrowind::glyphs {

struct Point {
  double x = 0;
  double y = 0;
};

/// Lines and curves from point to point, with y downwards. Where they overlap, what an even number of them
/// goes around is outside.
class GlyphPath {
 public:
  enum class StepKind { kMove, kLine, kCurve, kClose };
  struct Step {
    StepKind kind = StepKind::kMove;
    /// The end comes last. A curve (of Bézier's third degree) has two points before it that draw it to
    /// them; those that a step does not need come first and are zero.
    std::array<Point, 3> points = {};
  };

  [[nodiscard]] const std::vector<Step>& Steps() const { return steps_; }

  void MoveTo(Point end) { steps_.push_back({StepKind::kMove, {{{}, {}, end}}}); }
  void LineTo(Point end) { steps_.push_back({StepKind::kLine, {{{}, {}, end}}}); }
  void CurveTo(Point first, Point second, Point end) {
    steps_.push_back({StepKind::kCurve, {{first, second, end}}});
  }
  /// Back to where the line begins.
  void Close() { steps_.push_back({StepKind::kClose}); }

  /// A line through the points, of which there is at least one.
  void AddLine(std::initializer_list<Point> points);
  void AddRectangle(double left, double top, double width, double height);
  void AddRoundedRectangle(double left, double top, double width, double height, double radius);
  void AddEllipse(Point middle, double across, double down);
  /// A part of the circle, by degrees from the right; counter-clockwise, or clockwise where `sweep` is
  /// negative.
  void AddArc(Point middle, double radius, double start, double sweep);

 private:
  std::vector<Step> steps_;
};

}  // namespace ferrowind::glyphs
