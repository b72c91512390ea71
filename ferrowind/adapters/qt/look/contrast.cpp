#include "ferrowind/adapters/qt/look/contrast.h"

#include <algorithm>
#include <cmath>

namespace ferrowind::qt {
namespace {

constexpr float kLightnessStep = 0.02F;

double Linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

}  // namespace

double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) + 0.0722 * Linear(color.blueF());
}

double Contrast(const QColor& left, const QColor& right) {
  const auto [darker, lighter] = std::minmax({Luminance(left), Luminance(right)});
  return (lighter + 0.05) / (darker + 0.05);
}

bool IsDarkGround(const QColor& background) {
  // Here black and white are read equally well.
  constexpr double kMiddle = 0.18;
  return Luminance(background) < kMiddle;
}

QColor ShadeReadableOn(const QColor& background, const QColor& color, double wanted) {
  QColor shade = color;
  const float step = IsDarkGround(background) ? kLightnessStep : -kLightnessStep;
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

}  // namespace ferrowind::qt
