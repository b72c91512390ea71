#include "ferrowind/adapters/win32/year/legend_painter.h"

#include <algorithm>

#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/year/year_painter.h"

namespace ferrowind::win32 {

using platform::DayShape;
using platform::YearLegendEntry;
using year_engine::Area;

namespace {

constexpr double kLineShare = 1.5;
constexpr double kSampleShare = 1.8;

/// A day of that look, without a number.
void PaintSample(HDC context, const Area& area, const platform::DayLook& look, const YearColors& colors) {
  const YearColors::Tint& tint = colors.Of(look.tint);
  const RECT pixels = PixelsOf(area);
  SetDCBrushColor(context, tint.ground);
  FillRect(context, &pixels, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
  Shapes shapes(context);
  if (look.shape == DayShape::kHatching) DrawHatching(shapes, pixels, tint.mark);
  SetDCBrushColor(context, colors.line);
  FrameRect(context, &pixels, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
  const double mark = area.height * 0.4;
  const bool has_both = look.shape != DayShape::kNone && !look.letter.empty();
  const double half = has_both ? area.width / 2 : area.width;
  DrawDayMark(shapes, {area.left + (half - mark) / 2, area.Middle().y - mark / 2, mark, mark}, look.shape,
              tint.mark);
  RECT letter = pixels;
  if (has_both) letter.left = (pixels.left + pixels.right) / 2;
  const std::wstring text = ToWide(look.letter);
  SetTextColor(context, tint.mark);
  DrawTextW(context, text.c_str(), static_cast<int>(text.size()), &letter,
            DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_NOPREFIX | DT_NOCLIP);
}

}  // namespace

LegendPainter::LegendPainter(HDC context, HFONT font, const std::vector<YearLegendEntry>& entries)
    : context_(context), font_(font), entries_(entries), text_height_(LineHeight(context, font)) {}

double LegendPainter::HeightFor(double width) const {
  double height = 0;
  Place(width, [&](const YearLegendEntry&, const Area& area) { height = std::max(height, area.Bottom()); });
  return height;
}

void LegendPainter::Place(double width,
                          const std::function<void(const YearLegendEntry&, const Area&)>& place) const {
  double x = 0;
  double y = 0;
  for (const YearLegendEntry& entry : entries_) {
    const double entry_width =
        text_height_ * (kSampleShare + 0.5) + TextWidth(context_, font_, ToWide(entry.text)) + 1;
    if (x > 0 && x + entry_width > width) {
      x = 0;
      y += text_height_ * kLineShare;
    }
    place(entry, {x, y, entry_width, text_height_ * kLineShare});
    x += entry_width + text_height_ * 1.5;
  }
}

void LegendPainter::Paint(const Area& area, const YearColors& colors) const {
  SetBkMode(context_, TRANSPARENT);
  const Selected font(context_, font_);
  Place(area.width, [&](const YearLegendEntry& entry, const Area& place) {
    const double left = area.left + place.left;
    const double middle = area.top + place.Middle().y;
    PaintSample(context_, {left, middle - text_height_ / 2, text_height_ * kSampleShare, text_height_},
                entry.look, colors);
    const double beside = text_height_ * (kSampleShare + 0.5);
    RECT text = PixelsOf({left + beside, area.top + place.top, place.width, place.height});
    const std::wstring shown = ToWide(entry.text);
    SetTextColor(context_, colors.text);
    DrawTextW(context_, shown.c_str(), static_cast<int>(shown.size()), &text,
              DT_SINGLELINE | DT_LEFT | DT_VCENTER | DT_NOPREFIX | DT_NOCLIP);
  });
}

}  // namespace ferrowind::win32
