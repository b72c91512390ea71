#include "ferrowind/adapters/qt/look/refusal_color.h"

namespace ferrowind::qt {

QColor RefusalColor(const QPalette& palette) {
  const bool is_dark =
      palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
  return is_dark ? QColor(0xff, 0x8a, 0x80) : QColor(0xc6, 0x28, 0x28);
}

}  // namespace ferrowind::qt
