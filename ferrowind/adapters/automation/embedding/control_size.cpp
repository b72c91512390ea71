#include "ferrowind/adapters/automation/embedding/control_size.h"

namespace ferrowind::automation {

SIZEL ControlExtent() {
  constexpr int kHundredthsOfMillimetreInInch = 2540;
  const HDC screen = GetDC(nullptr);
  const int dots_per_inch = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  const LONG side = MulDiv(kControlPixels, kHundredthsOfMillimetreInInch, dots_per_inch);
  return {side, side};
}

bool IsControlSize(const RECT& pixels) {
  return pixels.right - pixels.left == kControlPixels && pixels.bottom - pixels.top == kControlPixels;
}

}  // namespace ferrowind::automation
