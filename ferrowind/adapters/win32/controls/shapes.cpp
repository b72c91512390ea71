#include "ferrowind/adapters/win32/controls/shapes.h"

#include "ferrowind/adapters/win32/controls/image_library.h"

namespace ferrowind::win32 {
namespace {

Gdiplus::Color ColorOf(COLORREF color) { return {GetRValue(color), GetGValue(color), GetBValue(color)}; }

std::vector<Gdiplus::PointF> PointsOf(const std::vector<ShapePoint>& points) {
  std::vector<Gdiplus::PointF> converted;
  for (const ShapePoint& point : points)
    converted.emplace_back(static_cast<float>(point.x), static_cast<float>(point.y));
  return converted;
}

Gdiplus::RectF Around(const ShapePoint& middle, double across, double down) {
  return {static_cast<float>(middle.x - across), static_cast<float>(middle.y - down),
          static_cast<float>(2 * across), static_cast<float>(2 * down)};
}

}  // namespace

struct Shapes::Canvas {
  explicit Canvas(HDC context) : graphics(context) {
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
  }

  ImageLibrary library;
  Gdiplus::Graphics graphics;
};

Shapes::Shapes(HDC context) : canvas_(std::make_unique<Canvas>(context)) {}

Shapes::~Shapes() = default;

void Shapes::Line(const std::vector<ShapePoint>& points, double width, COLORREF color) {
  Gdiplus::Pen pen(ColorOf(color), static_cast<float>(width));
  pen.SetStartCap(Gdiplus::LineCapRound);
  pen.SetEndCap(Gdiplus::LineCapRound);
  pen.SetLineJoin(Gdiplus::LineJoinRound);
  const auto converted = PointsOf(points);
  canvas_->graphics.DrawLines(&pen, converted.data(), static_cast<INT>(converted.size()));
  canvas_->graphics.Flush(Gdiplus::FlushIntentionSync);
}

void Shapes::Fill(const std::vector<ShapePoint>& polygon, COLORREF color) {
  const Gdiplus::SolidBrush brush(ColorOf(color));
  const auto converted = PointsOf(polygon);
  canvas_->graphics.FillPolygon(&brush, converted.data(), static_cast<INT>(converted.size()));
  canvas_->graphics.Flush(Gdiplus::FlushIntentionSync);
}

void Shapes::Ring(const ShapePoint& middle, double across, double down, double width, COLORREF color) {
  const Gdiplus::Pen pen(ColorOf(color), static_cast<float>(width));
  canvas_->graphics.DrawEllipse(&pen, Around(middle, across, down));
  canvas_->graphics.Flush(Gdiplus::FlushIntentionSync);
}

void Shapes::Disc(const ShapePoint& middle, double across, double down, COLORREF color) {
  const Gdiplus::SolidBrush brush(ColorOf(color));
  canvas_->graphics.FillEllipse(&brush, Around(middle, across, down));
  canvas_->graphics.Flush(Gdiplus::FlushIntentionSync);
}

void Shapes::Chevron(const RECT& room, COLORREF color) {
  constexpr double kParts = 10;
  const double unit = static_cast<double>(room.bottom - room.top) / kParts;
  const double x = static_cast<double>(room.left + room.right) / 2;
  const double y = static_cast<double>(room.top + room.bottom) / 2;
  Line({{x - 2 * unit, y - unit}, {x, y + unit}, {x + 2 * unit, y - unit}}, unit / 2, color);
}

void Shapes::Clip(const RECT& area) {
  canvas_->graphics.SetClip(
      Gdiplus::Rect(area.left, area.top, area.right - area.left, area.bottom - area.top));
}

void Shapes::ClipNothing() { canvas_->graphics.ResetClip(); }

}  // namespace ferrowind::win32
