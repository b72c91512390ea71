#pragma once

#include <QIcon>

#include "ferrowind/adapters/qt/look/glyph.h"

namespace ferrowind::qt {

/// An icon that draws the glyph in the colours of the application's palette of the moment, crisp at any size
/// and resolution.
[[nodiscard]] QIcon LineIcon(Glyph (*glyph)());

}  // namespace ferrowind::qt
