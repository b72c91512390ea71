#include "ferrowind/adapters/glyphs/glyph.h"

#include <algorithm>

namespace ferrowind::glyphs {

double LineWidthIn(double pixels) {
  constexpr double kThinnestPixels = 1.25;
  return std::max(kLineWidth, kThinnestPixels * kSide / pixels);
}

}  // namespace ferrowind::glyphs
