#pragma once

#include <QColor>
#include <QIcon>

#include "ferrowind/adapters/glyphs/glyph.h"

namespace ferrowind::qt {

/// An icon that draws the glyph in the colours of the application's palette of the moment, crisp at any size
/// and resolution. A valid `accent` stands in for the theme's where the icon is neither disabled nor
/// selected.
[[nodiscard]] QIcon LineIcon(glyphs::MakeGlyph glyph, const QColor& accent = {});

}  // namespace ferrowind::qt
