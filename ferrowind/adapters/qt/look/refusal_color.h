#pragma once

#include <QColor>
#include <QPalette>

namespace ferrowind::qt {

/// The colour of edges and marks that tell of a refused input, readable on the palette's base and window.
[[nodiscard]] QColor RefusalColor(const QPalette& palette);

}  // namespace ferrowind::qt
