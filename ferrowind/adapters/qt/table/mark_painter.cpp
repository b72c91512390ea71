#include "ferrowind/adapters/qt/table/mark_painter.h"

#include <cstddef>

#include "ferrowind/adapters/glyphs/mark_glyphs.h"
#include "ferrowind/adapters/qt/look/glyph_painter.h"

namespace ferrowind::qt {

using platform::CellMark;

namespace {

/// More than the colours and scales of a table that stays on show; those of a theme that was left go.
constexpr std::size_t kMostPictures = 128;

QPixmap PictureOf(CellMark mark, int side, const QColor& color, int scale) {
  QPixmap picture(side * scale, side * scale);
  picture.setDevicePixelRatio(scale);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  PaintGlyph(painter, glyphs::MarkGlyph(mark), QRectF(0, 0, side, side), color, color);
  return picture;
}

}  // namespace

void MarkPainter::Paint(QPainter& painter, const QPoint& place, int side, CellMark mark,
                        const QColor& color) {
  const qreal ratio = painter.device()->devicePixelRatio();
  const int scale = qRound(ratio);
  // A picture would lie between the pixels and be blurred.
  if (ratio != scale) {
    return PaintGlyph(painter, glyphs::MarkGlyph(mark), QRectF(place, QSize(side, side)), color, color);
  }
  const Key key{mark, side, color.rgba(), scale};
  auto known = pictures_.find(key);
  if (known == pictures_.end()) {
    if (pictures_.size() >= kMostPictures) pictures_.clear();
    known = pictures_.emplace(key, PictureOf(mark, side, color, scale)).first;
  }
  painter.drawPixmap(place, known->second);
}

}  // namespace ferrowind::qt
