#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

#include "ferrowind/platform/toolkit/year_view.h"

namespace ferrowind::qt {

/// Draws the mark of that shape into `box`, which is square, a bar at the foot of it and twice as wide;
/// nothing for `kNone` and `kHatching`.
void DrawDayMark(QPainter& painter, const QRectF& box, platform::DayShape shape, const QColor& color);

/// Draws the hatching of a day's ground.
void DrawHatching(QPainter& painter, const QRectF& area, const QColor& color);

}  // namespace ferrowind::qt
