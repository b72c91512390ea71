#include "ferrowind/adapters/win32/controls/glyph_pictures.h"

#include <array>
#include <cstdint>

#include "ferrowind/adapters/win32/controls/image_library.h"

namespace ferrowind::win32 {

using glyphs::Glyph;
using glyphs::GlyphPath;

namespace {

/// How many dots a pixel is drawn by in each direction: its edges are as smooth as that, whatever the library
/// makes of them.
constexpr int kFiner = 4;

/// A picture with transparent ground, whose bytes are in reach.
struct Picture {
  explicit Picture(int length) : side(length) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = side;
    info.bmiHeader.biHeight = -side;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bytes = nullptr;
    bitmap.reset(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bytes, nullptr, 0));
    pixels = static_cast<std::uint32_t*>(bytes);
  }

  [[nodiscard]] bool IsThere() const { return bitmap != nullptr; }

  int side;
  UniqueBitmap bitmap;
  /// Blue, green, red and opacity, from the lowest byte on; by rows from the top.
  std::uint32_t* pixels = nullptr;
};

void Append(Gdiplus::GraphicsPath& converted, const GlyphPath& path) {
  const auto at = [](const glyphs::Point& point) {
    return Gdiplus::PointF(static_cast<float>(point.x), static_cast<float>(point.y));
  };
  Gdiplus::PointF now;
  for (const auto& [kind, points] : path.Steps()) {
    switch (kind) {
      case GlyphPath::StepKind::kMove:
        converted.StartFigure();
        break;
      case GlyphPath::StepKind::kLine:
        converted.AddLine(now, at(points[2]));
        break;
      case GlyphPath::StepKind::kCurve:
        converted.AddBezier(now, at(points[0]), at(points[1]), at(points[2]));
        break;
      case GlyphPath::StepKind::kClose:
        converted.CloseFigure();
        break;
    }
    now = at(points[2]);
  }
}

void Draw(Gdiplus::Graphics& graphics, const GlyphPath& lines, const GlyphPath& solids, COLORREF color,
          double width) {
  const Gdiplus::Color native(GetRValue(color), GetGValue(color), GetBValue(color));
  Gdiplus::Pen pen(native, static_cast<float>(width));
  pen.SetStartCap(Gdiplus::LineCapRound);
  pen.SetEndCap(Gdiplus::LineCapRound);
  pen.SetLineJoin(Gdiplus::LineJoinRound);
  Gdiplus::GraphicsPath drawn;
  Append(drawn, lines);
  graphics.DrawPath(&pen, &drawn);
  const Gdiplus::SolidBrush brush(native);
  Gdiplus::GraphicsPath filled;
  Append(filled, solids);
  graphics.FillPath(&brush, &filled);
}

/// Into the square of that side at the origin of `graphics`; as wide as they are in a picture of `pixels`.
void Draw(Gdiplus::Graphics& graphics, const Glyph& glyph, int side, int pixels, const GlyphColors& colors) {
  graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
  graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
  const auto scale = static_cast<float>(side / glyphs::kSide);
  graphics.ScaleTransform(scale, scale);
  const double width = glyphs::LineWidthIn(pixels);
  Draw(graphics, glyph.lines, glyph.solids, colors.line, width);
  Draw(graphics, glyph.accent_lines, glyph.accent_solids, colors.accent, width);
  graphics.Flush(Gdiplus::FlushIntentionSync);
}

/// The mean of the dots that a pixel was drawn by, the colours weighed by their opacity.
std::uint32_t MeanOf(const std::uint32_t* dots, int dots_of_row) {
  std::uint32_t opacity = 0;
  std::array<std::uint32_t, 3> colors{};
  for (int y = 0; y < kFiner; ++y) {
    for (int x = 0; x < kFiner; ++x) {
      const std::uint32_t dot = dots[y * dots_of_row + x];
      const std::uint32_t weight = dot >> 24;
      opacity += weight;
      for (unsigned part = 0; part < colors.size(); ++part)
        colors[part] += weight * ((dot >> (8 * part)) & 0xFF);
    }
  }
  if (opacity == 0) return 0;
  constexpr std::uint32_t kDots = kFiner * kFiner;
  std::uint32_t mean = opacity / kDots << 24;
  for (unsigned part = 0; part < colors.size(); ++part) mean |= colors[part] / opacity << (8 * part);
  return mean;
}

/// Without a bitmap where there is no memory.
Picture PictureOf(const Glyph& glyph, int side, const GlyphColors& colors) {
  Picture fine(side * kFiner);
  Picture picture(side);
  if (!fine.IsThere() || !picture.IsThere()) return picture;
  {
    Gdiplus::Bitmap canvas(fine.side, fine.side, fine.side * 4, PixelFormat32bppARGB,
                           reinterpret_cast<BYTE*>(fine.pixels));
    Gdiplus::Graphics graphics(&canvas);
    Draw(graphics, glyph, fine.side, side, colors);
  }
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      const std::uint32_t* dots = fine.pixels + (y * fine.side + x) * kFiner;
      picture.pixels[y * side + x] = MeanOf(dots, fine.side);
    }
  }
  return picture;
}

}  // namespace

UniqueImageList PicturesOf(const std::vector<glyphs::MakeGlyph>& makers, int side,
                           const GlyphColors& colors) {
  const ImageLibrary library;
  UniqueImageList list(ImageList_Create(side, side, ILC_COLOR32, static_cast<int>(makers.size()), 0));
  for (const glyphs::MakeGlyph make : makers)
    ImageList_Add(list.get(), PictureOf(make(), side, colors).bitmap.get(), nullptr);
  return list;
}

void PaintGlyph(HDC context, POINT place, int side, const Glyph& glyph, const GlyphColors& colors) {
  const ImageLibrary library;
  Gdiplus::Graphics graphics(context);
  graphics.TranslateTransform(static_cast<float>(place.x), static_cast<float>(place.y));
  Draw(graphics, glyph, side, side, colors);
}

}  // namespace ferrowind::win32
