#pragma once

#include "ferrowind/adapters/glyphs/glyph_path.h"

namespace ferrowind::glyphs {

/// The side of the square that glyphs are drawn in, and the width of their lines in it.
inline constexpr double kSide = 24;
inline constexpr double kLineWidth = 1.6;

/// The drawing of an icon, apart from what it is drawn with: lines with round ends and corners in the text's
/// colour, and an accent in the theme's highlight colour.
struct Glyph {
  GlyphPath lines = {};
  /// Filled in the lines' colour.
  GlyphPath solids = {};
  GlyphPath accent_lines = {};
  /// Filled in the accent's colour.
  GlyphPath accent_solids = {};
};

using MakeGlyph = Glyph (*)();

/// How wide lines are in a picture of so many pixels: never so thin that they would look grey rather than
/// thin.
[[nodiscard]] double LineWidthIn(double pixels);

}  // namespace ferrowind::glyphs
