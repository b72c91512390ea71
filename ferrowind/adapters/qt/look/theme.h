#pragma once

#include <QApplication>

namespace ferrowind::qt {

enum class Theme {
  /// Dark when the desktop's own palette is dark, light otherwise.
  kSystem,
  kLight,
  kDark,
};

/// Gives the whole application the component's look. For hosts that have no look of their own; may be called
/// again to change the theme while windows are open.
void ApplyTheme(QApplication& application, Theme theme);

}  // namespace ferrowind::qt
