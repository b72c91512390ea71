#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

#include "ferrowind/adapters/glyphs/glyph.h"

namespace ferrowind::qt {

/// Draws a glyph as large as it fits about the middle of `area`, its lines never too thin to be seen.
void PaintGlyph(QPainter& painter, const glyphs::Glyph& glyph, const QRectF& area, const QColor& line,
                const QColor& accent);

}  // namespace ferrowind::qt
