#pragma once

#include <memory>
#include <vector>

#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::win32 {

/// A place in a device context, between its pixels too.
struct ShapePoint {
  double x = 0;
  double y = 0;
};

/// Draws shapes with smooth edges into a device context. One after the other: each is there when the call
/// returns.
class Shapes {
 public:
  explicit Shapes(HDC context);
  ~Shapes();
  Shapes(const Shapes&) = delete;
  Shapes& operator=(const Shapes&) = delete;

  /// Lines from point to point, with round ends.
  void Line(const std::vector<ShapePoint>& points, double width, COLORREF color);
  void Fill(const std::vector<ShapePoint>& polygon, COLORREF color);
  ///@{
  /// An ellipse by its middle and its radii.
  void Ring(const ShapePoint& middle, double across, double down, double width, COLORREF color);
  void Disc(const ShapePoint& middle, double across, double down, COLORREF color);
  ///@}

  /// What opens a list, in the middle of the room.
  void Chevron(const RECT& room, COLORREF color);

  /// Draws nothing outside of that area until `ClipNothing`.
  void Clip(const RECT& area);
  void ClipNothing();

 private:
  struct Canvas;
  std::unique_ptr<Canvas> canvas_;
};

}  // namespace ferrowind::win32
