#include "ferrowind/adapters/qt/look/theme.h"

#include <QPalette>

#include "ferrowind/adapters/qt/look/theme_style.h"

namespace ferrowind::qt {
namespace {

struct Shades {
  QColor window;
  QColor base;
  QColor alternate;
  QColor button;
  QColor text;
  QColor faint_text;
  /// Fainter than a text, yet readable.
  QColor placeholder;
  QColor accent;
  QColor on_accent;
  QColor tool_tip;
  QColor line;
};

Shades LightShades() {
  return {{0xf4, 0xf5, 0xf7}, {0xff, 0xff, 0xff}, {0xf7, 0xf8, 0xfa}, {0xee, 0xf0, 0xf3},
          {0x1c, 0x20, 0x26}, {0x8d, 0x95, 0xa1}, {0x6a, 0x72, 0x7e}, {0x1f, 0x6f, 0xc4},
          {0xff, 0xff, 0xff}, {0xff, 0xff, 0xff}, {0xb9, 0xc0, 0xca}};
}

Shades DarkShades() {
  return {{0x22, 0x26, 0x2b}, {0x1a, 0x1d, 0x21}, {0x20, 0x24, 0x29}, {0x2e, 0x33, 0x3a},
          {0xe4, 0xe8, 0xee}, {0x78, 0x82, 0x8f}, {0x96, 0xa0, 0xad}, {0x2a, 0x74, 0xc8},
          {0xff, 0xff, 0xff}, {0x2e, 0x33, 0x3a}, {0x10, 0x12, 0x15}};
}

QColor LinkOf(const Shades& shades, bool is_dark) {
  return is_dark ? QColor(0x82, 0xbc, 0xff) : shades.accent;
}

QPalette PaletteOf(const Shades& shades, bool is_dark) {
  QPalette palette(shades.text, shades.button, shades.button.lighter(is_dark ? 140 : 105), shades.line,
                   shades.button.darker(115), shades.text, shades.on_accent, shades.base, shades.window);
  palette.setColor(QPalette::AlternateBase, shades.alternate);
  palette.setColor(QPalette::ButtonText, shades.text);
  palette.setColor(QPalette::ToolTipBase, shades.tool_tip);
  palette.setColor(QPalette::ToolTipText, shades.text);
  palette.setColor(QPalette::Highlight, shades.accent);
  palette.setColor(QPalette::HighlightedText, shades.on_accent);
  palette.setColor(QPalette::Link, LinkOf(shades, is_dark));
  palette.setColor(QPalette::LinkVisited, LinkOf(shades, is_dark));
  palette.setColor(QPalette::PlaceholderText, shades.placeholder);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, shades.faint_text);
  }
  palette.setColor(QPalette::Disabled, QPalette::Base, shades.window);
  palette.setColor(QPalette::Disabled, QPalette::Highlight, shades.line);
  // A list keeps telling its chosen row while the keyboard is elsewhere, only more quietly.
  palette.setColor(QPalette::Inactive, QPalette::Highlight,
                   is_dark ? QColor(0x3a, 0x4a, 0x5c) : QColor(0xcf, 0xdf, 0xf1));
  palette.setColor(QPalette::Inactive, QPalette::HighlightedText, shades.text);
  return palette;
}

/// The desktop's palette as it is before any theme of ours.
bool IsDesktopDark() {
  static const bool is_dark = [] {
    const QPalette desktop = QGuiApplication::palette();
    return desktop.color(QPalette::Window).lightness() < desktop.color(QPalette::WindowText).lightness();
  }();
  return is_dark;
}

}  // namespace

void ApplyTheme(QApplication& application, Theme theme) {
  const bool is_desktop_dark = IsDesktopDark();
  const bool is_dark = theme == Theme::kDark || (theme == Theme::kSystem && is_desktop_dark);
  if (dynamic_cast<ThemeStyle*>(application.style()) == nullptr) QApplication::setStyle(new ThemeStyle);
  QApplication::setPalette(PaletteOf(is_dark ? DarkShades() : LightShades(), is_dark));
}

}  // namespace ferrowind::qt
