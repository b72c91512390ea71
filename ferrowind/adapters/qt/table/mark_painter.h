#pragma once

#include <QColor>
#include <QPainter>
#include <QPixmap>
#include <QPoint>
#include <map>
#include <tuple>

#include "ferrowind/platform/toolkit/table.h"

namespace ferrowind::qt {

/// Paints the marks of cells. A table repeats few of them in few colours, and most of the cost of one is
/// drawing its lines, so each is drawn once and kept as a picture.
class MarkPainter {
 public:
  /// In a square of `side` pixels whose corner is `place`. Precondition: a mark, not `kNone`.
  void Paint(QPainter& painter, const QPoint& place, int side, platform::CellMark mark, const QColor& color);

 private:
  /// Mark, side, colour and pixels of the screen to one of the widget.
  using Key = std::tuple<platform::CellMark, int, QRgb, int>;

  std::map<Key, QPixmap> pictures_;
};

}  // namespace ferrowind::qt
