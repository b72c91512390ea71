#pragma once

#include "ferrowind/adapters/qt/look/glyph.h"

namespace ferrowind::qt {

// Shapes that stand before a text and are told from each other by their form alone.

[[nodiscard]] Glyph CheckedCircleGlyph();
[[nodiscard]] Glyph UnequalGlyph();
[[nodiscard]] Glyph HalfCircleGlyph();
[[nodiscard]] Glyph EmptyCircleGlyph();
[[nodiscard]] Glyph NoteGlyph();
[[nodiscard]] Glyph TriangleGlyph();
[[nodiscard]] Glyph OctagonGlyph();
[[nodiscard]] Glyph PlusGlyph();
[[nodiscard]] Glyph MinusGlyph();
[[nodiscard]] Glyph TwoArrowsGlyph();
[[nodiscard]] Glyph EqualGlyph();
[[nodiscard]] Glyph CrossGlyph();
[[nodiscard]] Glyph RingGlyph();

}  // namespace ferrowind::qt
