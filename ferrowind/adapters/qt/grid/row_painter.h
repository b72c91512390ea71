#pragma once

#include <QRect>
#include <vector>

#include "ferrowind/adapters/qt/grid/grid_colors.h"
#include "ferrowind/adapters/qt/grid/grid_content.h"
#include "ferrowind/adapters/qt/grid/text_cache.h"

class QPainter;

namespace ferrowind::qt {

/// A column on show: its index and where it stands in the viewport.
struct ShownColumn {
  std::int16_t index = 0;
  int left = 0;
  int width = 0;
};

struct RowState {
  bool is_selected = false;
  bool is_current = false;
  bool is_odd = false;
  /// The index of the column of the cell that the keyboard acts on; 0 without the focus.
  std::int16_t focus_column = 0;
};

/// Paints the rows of a grid into its viewport.
///
/// The grid paints itself and does not leave it to one delegate call per cell, whose questions to the model
/// and the style are most of the time that a table spends on painting.
class RowPainter {
 public:
  RowPainter(const GridContent& content, const GridColors& colors, TextCache& texts)
      : content_(content), colors_(colors), texts_(texts) {}

  /// All of a record's row but the lines between its columns.
  void PaintRecord(QPainter& painter, const QRect& row, const std::vector<ShownColumn>& columns,
                   grid_engine::Record record, const RowState& state) const;
  /// The lines between the columns of rows of records that follow one another: one for all of them, as each
  /// stroke has its price.
  void PaintColumnLines(QPainter& painter, const std::vector<ShownColumn>& columns, int top,
                        int height) const;
  void PaintGroup(QPainter& painter, const QRect& row, grid_engine::GroupId group,
                  const RowState& state) const;

  /// The area of the mark that expands and collapses the group, in a row at `row`.
  [[nodiscard]] static QRect ExpanderArea(const QRect& row, std::uint32_t level,
                                          Qt::LayoutDirection direction);

 private:
  [[nodiscard]] QColor GroundOf(const RowState& state) const;
  void PaintCell(QPainter& painter, const QRect& cell, std::int16_t column, grid_engine::Record record,
                 unsigned char style) const;

  const GridContent& content_;
  const GridColors& colors_;
  TextCache& texts_;
};

/// Paints a triangle that points down (or right, or up), filling about the middle of `area`.
enum class Pointing { kDown, kUp, kRight, kLeft };
void PaintTriangle(QPainter& painter, const QRectF& area, Pointing pointing, const QColor& color);

}  // namespace ferrowind::qt
