#include "ferrowind/adapters/qt/look/blend.h"

#include <cmath>

namespace ferrowind::qt {

QColor Blend(const QColor& from, const QColor& to, double share) {
  const auto mix = [share](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * share)); };
  return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

}  // namespace ferrowind::qt
