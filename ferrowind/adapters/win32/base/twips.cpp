#include "ferrowind/adapters/win32/base/twips.h"

#include <algorithm>
#include <cmath>

namespace ferrowind::win32 {
namespace {

constexpr float kTwipsPerInch = 1440;
/// Beyond what the platform takes for a place, so that a huge one stays a place.
constexpr float kFarthest = 1'000'000;

}  // namespace

int ToPixels(float twips, UINT dots_per_inch) {
  const float pixels = twips * static_cast<float>(dots_per_inch) / kTwipsPerInch;
  return static_cast<int>(std::lround(std::clamp(pixels, -kFarthest, kFarthest)));
}

float ToTwips(int pixels, UINT dots_per_inch) {
  return static_cast<float>(pixels) * kTwipsPerInch / static_cast<float>(dots_per_inch);
}

int Scaled(int length, UINT dots_per_inch) {
  return MulDiv(length, static_cast<int>(dots_per_inch), USER_DEFAULT_SCREEN_DPI);
}

}  // namespace ferrowind::win32
