#include "ferrowind/adapters/qt/grid/grid_colors.h"

#include "ferrowind/adapters/qt/look/blend.h"
#include "ferrowind/adapters/qt/look/contrast.h"

namespace ferrowind::qt {

QColor ReadableOn(const QColor& background, const QColor& color) {
  // On light paper a colour that was given is kept down to what large or bold text needs; on dark ground
  // saturated colours glare, and the ratio for plain text is asked for.
  return ShadeReadableOn(background, color, IsDarkGround(background) ? kTextContrast : kMarkContrast);
}

GridColors::GridColors(const QPalette& palette) {
  base = palette.color(QPalette::Base);
  text = palette.color(QPalette::Text);
  is_enabled = palette.currentColorGroup() != QPalette::Disabled;
  // The marks of the headers do not fade with the window.
  accent = palette.color(is_enabled ? QPalette::Active : QPalette::Disabled, QPalette::Highlight);
  is_dark = IsDarkGround(base);
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
