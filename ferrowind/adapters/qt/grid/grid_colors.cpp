#include "ferrowind/adapters/qt/grid/grid_colors.h"

#include <algorithm>
#include <cmath>

#include "ferrowind/adapters/qt/look/blend.h"

namespace ferrowind::qt {

namespace {

/// On light paper a colour that was given is kept down to what large or bold text needs; on dark ground
/// saturated colours glare, and the ratio for plain text is asked for.
constexpr double kContrastOnLight = 3.0;
constexpr double kContrastOnDark = 4.5;
constexpr float kLightnessStep = 0.02F;

double Linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) + 0.0722 * Linear(color.blueF());
}

}  // namespace

double Contrast(const QColor& left, const QColor& right) {
  const auto [darker, lighter] = std::minmax({Luminance(left), Luminance(right)});
  return (lighter + 0.05) / (darker + 0.05);
}

QColor ReadableOn(const QColor& background, const QColor& color) {
  const bool is_dark = Luminance(background) < 0.18;
  const double wanted = is_dark ? kContrastOnDark : kContrastOnLight;
  QColor shade = color;
  const float step = is_dark ? kLightnessStep : -kLightnessStep;
  float hue = 0;
  float saturation = 0;
  float lightness = 0;
  color.getHslF(&hue, &saturation, &lightness);
  while (Contrast(shade, background) < wanted && lightness > 0 && lightness < 1) {
    lightness = std::clamp(lightness + step, 0.0F, 1.0F);
    shade = QColor::fromHslF(std::max(hue, 0.0F), saturation, lightness);
  }
  return shade;
}

GridColors::GridColors(const QPalette& palette) {
  base = palette.color(QPalette::Base);
  text = palette.color(QPalette::Text);
  is_enabled = palette.currentColorGroup() != QPalette::Disabled;
  // The marks of the headers do not fade with the window.
  accent = palette.color(is_enabled ? QPalette::Active : QPalette::Disabled, QPalette::Highlight);
  is_dark = Luminance(base) < 0.18;
  alternate = Blend(base, text, is_dark ? 0.035 : 0.025);
  muted = Blend(base, text, 0.62);
  line = Blend(base, text, is_dark ? 0.14 : 0.11);
  // A window that is not active keeps telling its chosen rows, in grey: a question before it may be about
  // them.
  const bool is_active = palette.currentColorGroup() != QPalette::Inactive;
  const QColor chosen = is_active ? accent : Blend(base, text, is_dark ? 0.5 : 0.9);
  selected = Blend(base, chosen, is_dark ? 0.38 : 0.20);
  current = Blend(base, chosen, is_dark ? 0.50 : 0.30);
  current_frame = is_active ? ReadableOn(current, accent) : Blend(base, text, 0.8);
  group = Blend(base, text, is_dark ? 0.09 : 0.055);
  header = Blend(palette.color(QPalette::Window), base, 0.35);
  header_pressed = Blend(header, accent, 0.20);
  header_line = Blend(header, text, 0.18);
}

}  // namespace ferrowind::qt
