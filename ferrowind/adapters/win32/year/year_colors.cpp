#include "ferrowind/adapters/win32/year/year_colors.h"

namespace ferrowind::win32 {
namespace {

using platform::DayTint;

COLORREF HueOf(DayTint tint, COLORREF text) {
  switch (tint) {
    case DayTint::kRed:
      return RGB(0xd0, 0x30, 0x30);
    case DayTint::kViolet:
      return RGB(0x8f, 0x3f, 0xc0);
    case DayTint::kGreen:
      return RGB(0x1f, 0x8a, 0x4c);
    case DayTint::kAmber:
      return RGB(0xc7, 0x7a, 0x00);
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

YearColors::YearColors(const Theme& theme)
    : base(theme.window),
      text(theme.text),
      selected_text(theme.is_high_contrast ? theme.highlight_text : theme.text),
      muted(theme.muted),
      line(theme.line),
      accent(theme.accent) {
  const double selection = theme.is_dark ? 0.42 : 0.28;
  // A hue is written in a darker shade of itself on light grounds, and in a lighter one on dark grounds.
  constexpr double kTowardsText = 0.65;
  for (std::size_t i = 0; i < tints.size(); ++i) {
    const auto tint = static_cast<DayTint>(i);
    Tint& colors = tints[i];
    if (theme.is_high_contrast) {
      // Meanings are told by marks and letters alone.
      colors = {theme.window, theme.highlight, theme.text, theme.highlight_text};
      continue;
    }
    const COLORREF hue = HueOf(tint, text);
    colors.ground = Blend(base, hue, StrengthOf(tint, theme.is_dark));
    colors.selected_ground = Blend(colors.ground, theme.highlight, selection);
    colors.mark = Blend(hue, text, kTowardsText);
    colors.selected_mark = colors.mark;
  }
}

}  // namespace ferrowind::win32
