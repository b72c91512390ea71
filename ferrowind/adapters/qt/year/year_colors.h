#pragma once

#include <QColor>
#include <QPalette>
#include <array>

#include "ferrowind/platform/toolkit/year_view.h"

namespace ferrowind::qt {

/// The colours that a year is painted in.
struct YearColors {
  /// What a day of a tint is painted in. Marks and letters can be read on both grounds.
  struct Tint {
    QColor ground;
    QColor selected_ground;
    QColor mark;
  };

  /// On a screen, made from the palette of a widget.
  explicit YearColors(const QPalette& palette);
  /// On paper, whatever the theme is.
  [[nodiscard]] static YearColors OnPaper();

  [[nodiscard]] const Tint& Of(platform::DayTint tint) const { return tints[static_cast<std::size_t>(tint)]; }

  QColor base;
  QColor text;
  /// For what accompanies: names of weekdays, notes.
  QColor muted;
  QColor line;
  /// Rings and frames, seen on all grounds.
  QColor accent;
  std::array<Tint, 6> tints;

 private:
  YearColors(const QColor& ground, const QColor& writing, const QColor& emphasis, const QColor& selection);
};

}  // namespace ferrowind::qt
