#pragma once

#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::win32 {

/// The colours of what this adapter paints itself: the platform's, or dark ones where the user wants programs
/// to be dark. In high contrast they are always the platform's.
struct Theme {
  bool is_dark = false;
  bool is_high_contrast = false;
  /// The ground of what can be typed or chosen in, and the text on it.
  COLORREF window = 0;
  COLORREF text = 0;
  /// For what accompanies, and for what cannot be used.
  COLORREF muted = 0;
  /// The ground of forms and headers, and the text on it.
  COLORREF face = 0;
  COLORREF face_text = 0;
  /// Between rows and columns.
  COLORREF line = 0;
  /// What is chosen, while it has the keyboard.
  COLORREF highlight = 0;
  COLORREF highlight_text = 0;
  /// What is chosen elsewhere.
  COLORREF faint_highlight = 0;
  COLORREF faint_highlight_text = 0;
  /// Seen on all grounds: rings and frames.
  COLORREF accent = 0;

  /// As the user's settings are now.
  [[nodiscard]] static Theme OfUser();
  /// On paper, whatever the settings are.
  [[nodiscard]] static Theme OnPaper();
};

/// The colour that lies `share` (0 to 1) of the way from `from` to `to`.
[[nodiscard]] COLORREF Blend(COLORREF from, COLORREF to, double share);

}  // namespace ferrowind::win32
