#pragma once

#include <QPainter>
#include <QRectF>
#include <QString>

namespace ferrowind::qt {

/// Draws a line of text at that side of the area, leading and trailing as the painter's direction has them.
/// The text itself runs in its own direction: words from the left stay in order in a window that is read from
/// the right, whatever number they begin or mark they end with.
void DrawTextLine(QPainter& painter, const QRectF& area, Qt::Alignment alignment, const QString& text);

}  // namespace ferrowind::qt
