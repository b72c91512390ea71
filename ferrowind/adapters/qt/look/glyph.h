#pragma once

#include <QPainterPath>

namespace ferrowind::qt {

/// The drawing of an icon in a square of 24 units: lines of 1.6 units in the text's colour, and an accent in
/// the theme's highlight colour.
struct Glyph {
  QPainterPath lines = {};
  /// Filled in the lines' colour.
  QPainterPath solids = {};
  QPainterPath accent_lines = {};
  /// Filled in the accent's colour.
  QPainterPath accent_solids = {};
};

}  // namespace ferrowind::qt
