#pragma once

#include "ferrowind/adapters/glyphs/glyph_path.h"

namespace ferrowind::glyphs {

// What drawings of glyphs are made of, added to a path.

/// About the point (x, y), to the length of an arm on each side.
void AddPlus(GlyphPath& path, double x, double y, double arm);
void AddMinus(GlyphPath& path, double x, double y, double arm);
void AddCross(GlyphPath& path, double x, double y, double arm);
/// From its left end at (x, y), of that width.
void AddCheck(GlyphPath& path, double x, double y, double size);
/// Around such a check whose line has that width, to be filled.
void AddCheckOutline(GlyphPath& path, double x, double y, double size, double width);

}  // namespace ferrowind::glyphs
