#pragma once

#include <QPainter>
#include <QRect>
#include <QRgb>
#include <QString>
#include <QWidget>
#include <map>
#include <optional>
#include <utility>

#include "ferrowind/adapters/qt/grid/grid_colors.h"
#include "ferrowind/adapters/qt/grid/text_cache.h"
#include "ferrowind/adapters/qt/table/mark_painter.h"
#include "ferrowind/platform/toolkit/table.h"

namespace ferrowind::qt {

/// Paints the cells of a table, and says how much room they take: box, mark and text, one behind the other in
/// reading direction.
class CellPainter {
 public:
  /// The widget must outlive this; its style at each moment counts.
  explicit CellPainter(const QWidget& widget) : widget_(widget), texts_(widget.font()) {}
  /// To be called when the widget has another font.
  void UpdateFont() { texts_.SetFont(widget_.font()); }

  /// `area` is all of the cell. `box` is the state of the row's box where the cell has it.
  void Paint(QPainter& painter, const QRect& area, const platform::TableCell& cell,
             platform::CellAlignment alignment, std::optional<bool> box, const QColor& ground,
             const GridColors& colors);
  /// The width at which the cell is read in full.
  [[nodiscard]] int FittingWidth(const platform::TableCell& cell, bool has_box) const;
  [[nodiscard]] int RowHeight() const;
  /// Where the box stands in a cell that has one.
  [[nodiscard]] QRect BoxIn(const QRect& area) const;

 private:
  [[nodiscard]] int MarkSide() const { return texts_.Metrics().height(); }
  /// Of mark, gap and text, which is that of the cell.
  [[nodiscard]] int ContentWidth(const platform::TableCell& cell, const QString& text) const;
  [[nodiscard]] QColor ColorOf(platform::CellTone tone, const QColor& ground, const GridColors& colors);

  const QWidget& widget_;
  TextCache texts_;
  MarkPainter marks_;
  /// What quiet texts are painted in, by the ground and the colour that they would have on it at best.
  std::map<std::pair<QRgb, QRgb>, QColor> quiet_;
};

}  // namespace ferrowind::qt
