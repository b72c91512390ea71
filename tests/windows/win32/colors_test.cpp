#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "ferrowind/adapters/win32/base/theme.h"
#include "ferrowind/adapters/win32/year/year_colors.h"

namespace ferrowind::win32 {
namespace {

/// What plain text needs, and what edges and marks need, as WCAG 2 has it.
constexpr double kTextContrast = 4.5;
constexpr double kMarkContrast = 3.0;

double Luminance(COLORREF color) {
  const auto linear = [](int channel) {
    const double share = channel / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(GetRValue(color)) + 0.7152 * linear(GetGValue(color)) +
         0.0722 * linear(GetBValue(color));
}

double Contrast(COLORREF one, COLORREF other) {
  const double left = Luminance(one) + 0.05;
  const double right = Luminance(other) + 0.05;
  return left > right ? left / right : right / left;
}

void ExpectReadable(const Theme& theme) {
  EXPECT_GE(Contrast(theme.text, theme.window), kTextContrast);
  EXPECT_GE(Contrast(theme.muted, theme.window), kTextContrast);
  EXPECT_GE(Contrast(theme.face_text, theme.face), kTextContrast);
  // What the platform chooses for its own highlight is the user's.
  if (theme.is_dark) {
    EXPECT_GE(Contrast(theme.highlight_text, theme.highlight), kTextContrast);
  }
  EXPECT_GE(Contrast(theme.faint_highlight_text, theme.faint_highlight), kTextContrast);
  const YearColors colors(theme);
  for (std::size_t i = 0; i < colors.tints.size(); ++i) {
    const YearColors::Tint& tint = colors.tints[i];
    EXPECT_GE(Contrast(colors.text, tint.ground), kTextContrast) << "tint " << i;
    EXPECT_GE(Contrast(colors.selected_text, tint.selected_ground), kTextContrast) << "tint " << i;
    EXPECT_GE(Contrast(tint.mark, tint.ground), kTextContrast) << "tint " << i;
    EXPECT_GE(Contrast(tint.selected_mark, tint.selected_ground), kTextContrast) << "tint " << i;
  }
  EXPECT_GE(Contrast(colors.accent, colors.base), kMarkContrast);
}

/// A user of its own, whose settings are empty at first, for as long as it lives.
class OwnUser {
 public:
  OwnUser() {
    RegCreateKeyExW(HKEY_CURRENT_USER, kKey, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key_, nullptr);
    RegOverridePredefKey(HKEY_CURRENT_USER, key_);
  }
  ~OwnUser() {
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegCloseKey(key_);
    RegDeleteTreeW(HKEY_CURRENT_USER, kKey);
  }
  OwnUser(const OwnUser&) = delete;
  OwnUser& operator=(const OwnUser&) = delete;

  static void WantLight(DWORD is_light) {
    RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
                    L"AppsUseLightTheme", REG_DWORD, &is_light, sizeof is_light);
  }

 private:
  static constexpr const wchar_t* kKey = L"Software\\FerrowindColorsTest";
  HKEY key_ = nullptr;
};

TEST(ThemeTest, IsThePlatformsUnlessTheUserWantsDark) {
  const OwnUser user;
  EXPECT_FALSE(Theme::OfUser().is_dark);
  EXPECT_EQ(Theme::OfUser().window, GetSysColor(COLOR_WINDOW));
  OwnUser::WantLight(1);
  EXPECT_FALSE(Theme::OfUser().is_dark);
  OwnUser::WantLight(0);
  EXPECT_TRUE(Theme::OfUser().is_dark);
}

TEST(ThemeTest, CanBeRead) {
  const OwnUser user;
  ExpectReadable(Theme::OfUser());
  OwnUser::WantLight(0);
  ExpectReadable(Theme::OfUser());
  const YearColors paper(Theme::OnPaper());
  EXPECT_GE(Contrast(paper.muted, paper.base), kTextContrast);
  for (const YearColors::Tint& tint : paper.tints) EXPECT_GE(Contrast(tint.mark, tint.ground), kTextContrast);
}

}  // namespace
}  // namespace ferrowind::win32
