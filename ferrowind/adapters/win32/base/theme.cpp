#include "ferrowind/adapters/win32/base/theme.h"

#include <cmath>

namespace ferrowind::win32 {
namespace {

bool IsHighContrast() {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof contrast;
  SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0);
  return (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

bool WantsDark() {
  DWORD is_light = 1;
  DWORD size = sizeof is_light;
  RegGetValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
               L"AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr, &is_light, &size);
  return is_light == 0;
}

Theme Dark() {
  Theme theme;
  theme.is_dark = true;
  theme.window = RGB(0x1e, 0x1f, 0x22);
  theme.text = RGB(0xec, 0xec, 0xec);
  theme.muted = RGB(0xa4, 0xa6, 0xaa);
  theme.face = RGB(0x2b, 0x2d, 0x30);
  theme.face_text = theme.text;
  theme.line = RGB(0x45, 0x48, 0x4d);
  theme.highlight = RGB(0x2a, 0x5f, 0xa8);
  theme.highlight_text = RGB(0xff, 0xff, 0xff);
  theme.faint_highlight = RGB(0x45, 0x4a, 0x54);
  theme.faint_highlight_text = theme.text;
  theme.accent = RGB(0x6a, 0xa8, 0xf0);
  return theme;
}

}  // namespace

COLORREF Blend(COLORREF from, COLORREF to, double share) {
  const auto mix = [share](int a, int b) { return std::lround(a + (b - a) * share); };
  return RGB(mix(GetRValue(from), GetRValue(to)), mix(GetGValue(from), GetGValue(to)),
             mix(GetBValue(from), GetBValue(to)));
}

Theme Theme::OfUser() {
  const bool is_high_contrast = IsHighContrast();
  if (!is_high_contrast && WantsDark()) return Dark();
  Theme theme;
  theme.is_high_contrast = is_high_contrast;
  theme.window = GetSysColor(COLOR_WINDOW);
  theme.text = GetSysColor(COLOR_WINDOWTEXT);
  theme.face = GetSysColor(COLOR_BTNFACE);
  theme.face_text = GetSysColor(COLOR_BTNTEXT);
  theme.highlight = GetSysColor(COLOR_HIGHLIGHT);
  theme.highlight_text = GetSysColor(COLOR_HIGHLIGHTTEXT);
  theme.accent = theme.highlight;
  if (is_high_contrast) {
    // These colours are few and each is the user's; none is mixed.
    theme.muted = theme.text;
    theme.line = theme.text;
    theme.faint_highlight = theme.highlight;
    theme.faint_highlight_text = theme.highlight_text;
    return theme;
  }
  constexpr double kMuted = 0.62;
  constexpr double kLine = 0.16;
  constexpr double kFaint = 0.25;
  theme.muted = Blend(theme.window, theme.text, kMuted);
  theme.line = Blend(theme.window, theme.text, kLine);
  theme.faint_highlight = Blend(theme.window, theme.highlight, kFaint);
  theme.faint_highlight_text = theme.text;
  return theme;
}

Theme Theme::OnPaper() {
  Theme theme;
  theme.window = theme.face = theme.faint_highlight = theme.highlight = RGB(0xff, 0xff, 0xff);
  theme.text = theme.face_text = theme.faint_highlight_text = theme.highlight_text = theme.accent =
      RGB(0x1c, 0x20, 0x26);
  theme.muted = RGB(0x5c, 0x60, 0x66);
  theme.line = RGB(0xd8, 0xda, 0xde);
  return theme;
}

}  // namespace ferrowind::win32
