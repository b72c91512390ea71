#include "ferrowind/adapters/qt/look/text_line.h"

#include <QStyle>

namespace ferrowind::qt {

void DrawTextLine(QPainter& painter, const QRectF& area, Qt::Alignment alignment, const QString& text) {
  const Qt::LayoutDirection direction = painter.layoutDirection();
  const Qt::Alignment sides = QStyle::visualAlignment(direction, alignment);
  painter.setLayoutDirection(Qt::LayoutDirectionAuto);
  painter.drawText(area, static_cast<int>(sides | Qt::AlignAbsolute) | Qt::TextSingleLine, text);
  painter.setLayoutDirection(direction);
}

}  // namespace ferrowind::qt
