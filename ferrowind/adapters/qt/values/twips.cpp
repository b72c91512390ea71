#include "ferrowind/adapters/qt/values/twips.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cmath>

namespace ferrowind::qt {
namespace {

constexpr float kTwipsPerInch = 1440.0F;
constexpr float kUsualDotsPerInch = 96.0F;
constexpr float kFarthestPixel = 32767.0F;

float TwipsPerPixel(qreal (QScreen::*dots_per_inch)() const) {
  const QScreen* screen = QGuiApplication::primaryScreen();
  const auto dots = screen == nullptr ? kUsualDotsPerInch : static_cast<float>((screen->*dots_per_inch)());
  return kTwipsPerInch / (dots > 0 ? dots : kUsualDotsPerInch);
}

int Pixels(float twips, float twips_per_pixel) {
  const float pixels = std::round(twips / twips_per_pixel);
  if (std::isnan(pixels)) return 0;
  return static_cast<int>(std::clamp(pixels, -kFarthestPixel, kFarthestPixel));
}

}  // namespace

float TwipsPerPixelX() { return TwipsPerPixel(&QScreen::logicalDotsPerInchX); }
float TwipsPerPixelY() { return TwipsPerPixel(&QScreen::logicalDotsPerInchY); }

int PixelsX(float twips) { return Pixels(twips, TwipsPerPixelX()); }
int PixelsY(float twips) { return Pixels(twips, TwipsPerPixelY()); }
float TwipsX(int pixels) { return static_cast<float>(pixels) * TwipsPerPixelX(); }
float TwipsY(int pixels) { return static_cast<float>(pixels) * TwipsPerPixelY(); }

}  // namespace ferrowind::qt
