#pragma once

#include <vector>

#include "ferrowind/adapters/glyphs/glyph.h"
#include "ferrowind/adapters/win32/base/handles.h"

namespace ferrowind::win32 {

/// What glyphs are drawn in.
struct GlyphColors {
  COLORREF line = 0;
  COLORREF accent = 0;
};

/// Pictures of those glyphs, in that order, that let the ground shine through; each a square of so many
/// pixels.
[[nodiscard]] UniqueImageList PicturesOf(const std::vector<glyphs::MakeGlyph>& makers, int side,
                                         const GlyphColors& colors);

/// Draws one as large as it fits into the square at that place.
void PaintGlyph(HDC context, POINT place, int side, const glyphs::Glyph& glyph, const GlyphColors& colors);

}  // namespace ferrowind::win32
