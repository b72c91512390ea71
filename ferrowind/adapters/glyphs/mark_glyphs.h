#pragma once

#include "ferrowind/adapters/glyphs/glyph.h"
#include "ferrowind/platform/toolkit/table.h"

namespace ferrowind::glyphs {

/// The shape that stands for a mark before a text, told from the others by its form alone; its accent is
/// empty. Nothing for no mark.
[[nodiscard]] const Glyph& MarkGlyph(platform::CellMark mark);

}  // namespace ferrowind::glyphs
