#pragma once

#include <array>

#include "ferrowind/adapters/win32/base/theme.h"
#include "ferrowind/platform/toolkit/year_view.h"

namespace ferrowind::win32 {

/// The colours that a year is painted in.
struct YearColors {
  explicit YearColors(const Theme& theme);

  /// What a day of a tint is painted in. Texts and marks can be read on the ground beside them.
  struct Tint {
    COLORREF ground = 0;
    COLORREF selected_ground = 0;
    COLORREF mark = 0;
    COLORREF selected_mark = 0;
  };

  [[nodiscard]] const Tint& Of(platform::DayTint tint) const { return tints[static_cast<std::size_t>(tint)]; }

  COLORREF base;
  COLORREF text;
  COLORREF selected_text;
  /// For what accompanies: names of weekdays, notes.
  COLORREF muted;
  COLORREF line;
  /// Rings and frames, seen on all grounds.
  COLORREF accent;
  std::array<Tint, 6> tints;
};

}  // namespace ferrowind::win32
