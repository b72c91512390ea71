#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QRect>
#include <QWidget>
#include <optional>

#include "ferrowind/adapters/qt/grid/grid_colors.h"
#include "ferrowind/platform/toolkit/table.h"

namespace ferrowind::qt {

/// Paints the cells of a table, and says how much room they take: box, mark and text, one behind the other in
/// reading direction.
class CellPainter {
 public:
  /// The widget must outlive this; its font and style at each moment count.
  explicit CellPainter(const QWidget& widget) : widget_(widget) {}

  /// `area` is all of the cell. `box` is the state of the row's box where the cell has it.
  void Paint(QPainter& painter, const QRect& area, const platform::TableCell& cell,
             platform::CellAlignment alignment, std::optional<bool> box, const QColor& ground,
             const GridColors& colors) const;
  /// The width at which the cell is read in full.
  [[nodiscard]] int FittingWidth(const platform::TableCell& cell, bool has_box) const;
  [[nodiscard]] int RowHeight() const;
  /// Where the box stands in a cell that has one.
  [[nodiscard]] QRect BoxIn(const QRect& area) const;

 private:
  [[nodiscard]] QFont FontOf(platform::CellTone tone) const;
  [[nodiscard]] int MarkSide() const;
  /// Of mark, gap and text.
  [[nodiscard]] int ContentWidth(const platform::TableCell& cell, const QFontMetrics& metrics) const;

  const QWidget& widget_;
};

}  // namespace ferrowind::qt
