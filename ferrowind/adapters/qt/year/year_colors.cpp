#include "ferrowind/adapters/qt/year/year_colors.h"

#include "ferrowind/adapters/qt/look/blend.h"
#include "ferrowind/adapters/qt/look/contrast.h"

namespace ferrowind::qt {
namespace {

using platform::DayTint;

QColor HueOf(DayTint tint, const QColor& text) {
  switch (tint) {
    case DayTint::kRed:
      return {0xd0, 0x30, 0x30};
    case DayTint::kViolet:
      return {0x8f, 0x3f, 0xc0};
    case DayTint::kGreen:
      return {0x1f, 0x8a, 0x4c};
    case DayTint::kAmber:
      return {0xc7, 0x7a, 0x00};
    case DayTint::kNone:
    case DayTint::kGrey:
      break;
  }
  return text;
}

double StrengthOf(DayTint tint, bool is_dark) {
  if (tint == DayTint::kNone) return 0;
  if (tint == DayTint::kGrey) return is_dark ? 0.14 : 0.09;
  return is_dark ? 0.34 : 0.17;
}

}  // namespace

YearColors::YearColors(const QPalette& palette)
    : YearColors(palette.color(QPalette::Base), palette.color(QPalette::Text),
                 palette.color(QPalette::Active, QPalette::Highlight),
                 // A window that is not active keeps telling its chosen days, in grey.
                 palette.currentColorGroup() == QPalette::Active
                     ? palette.color(QPalette::Highlight)
                     : Blend(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.6)) {}

YearColors YearColors::OnPaper() {
  const QColor ink(0x1c, 0x20, 0x26);
  return {Qt::white, ink, ink, ink};
}

YearColors::YearColors(const QColor& ground, const QColor& writing, const QColor& emphasis,
                       const QColor& selection)
    : base(ground), text(writing) {
  const bool is_dark = IsDarkGround(base);
  muted = ShadeReadableOn(base, Blend(base, text, 0.62), kTextContrast);
  line = Blend(base, text, is_dark ? 0.20 : 0.14);
  const double selection_strength = is_dark ? 0.42 : 0.28;
  accent = ShadeReadableOn(base, emphasis, kMarkContrast);
  for (std::size_t i = 0; i < tints.size(); ++i) {
    const auto tint = static_cast<DayTint>(i);
    const QColor hue = HueOf(tint, text);
    Tint& colors = tints[i];
    colors.ground = Blend(base, hue, StrengthOf(tint, is_dark));
    colors.selected_ground = Blend(colors.ground, selection, selection_strength);
    colors.mark = ShadeReadableOn(colors.selected_ground, ShadeReadableOn(colors.ground, hue, kTextContrast),
                                  kTextContrast);
    accent = ShadeReadableOn(colors.selected_ground, accent, kMarkContrast);
  }
}

}  // namespace ferrowind::qt
