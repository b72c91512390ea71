#include "ferrowind/adapters/qt/year/day_places.h"

#include <algorithm>

namespace ferrowind::qt {

DayPlaces::DayPlaces(const YearMetrics& metrics, const QRectF& cell) {
  const qreal size = metrics.mark_size;
  const QRectF inside = cell.adjusted(metrics.frame, metrics.frame, -metrics.frame, -metrics.frame);
  const qreal side = (inside.width() - metrics.number_width) / 2;
  if (side >= std::max(metrics.letter_size.width(), size)) {
    number = QRectF(inside.left() + side, inside.top(), metrics.number_width, inside.height());
    mark = QRectF(inside.left() + (side - size) / 2, cell.center().y() - size / 2, size, size);
    letter = QRectF(number.right(), inside.top(), side, inside.height());
  } else {
    // The letter has the room of both sides, and the mark stands below it.
    number = inside;
    number.setRight(inside.right() - metrics.letter_size.width());
    const qreal between = std::max(0.0, (inside.height() - metrics.letter_size.height() - size) / 3);
    letter = QRectF(number.right(), inside.top() + between, metrics.letter_size.width(),
                    metrics.letter_size.height());
    mark = QRectF(letter.center().x() - size / 2, letter.bottom() + between, size, size);
  }
  // As far below the number as there is room.
  const qreal bottom = std::min(cell.center().y() + metrics.number_ascent * 0.72, inside.bottom());
  bar = QRectF(number.center().x() - size / 2, bottom - size, size, size);
}

}  // namespace ferrowind::qt
