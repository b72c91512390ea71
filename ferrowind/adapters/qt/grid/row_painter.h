#pragma once

#include <QRect>
#include <QString>
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

  /// The frame that tells the current row, over all that is painted of it. `focus_column` is the index of the
  /// column of the cell that the keyboard acts on, 0 without the focus.
  void PaintCurrentMark(QPainter& painter, const QRect& row, const std::vector<ShownColumn>& columns,
                        std::int16_t focus_column) const;
  void PaintCurrentGroupMark(QPainter& painter, const QRect& row, bool has_focus) const;

  /// What stands in the record's cell, or in the group's row, when that cuts it; else nothing. `width` is
  /// that of the column or the row.
  [[nodiscard]] QString CutText(grid_engine::Record record, std::int16_t column, int width) const;
  [[nodiscard]] QString CutText(grid_engine::GroupId group, int width) const;

  /// The area of the mark that expands and collapses the group, in a row at `row`.
  [[nodiscard]] static QRect ExpanderArea(const QRect& row, std::uint32_t level,
                                          Qt::LayoutDirection direction);

 private:
  [[nodiscard]] static unsigned char StyleOf(const grid_content::RowLook& look);
  [[nodiscard]] QColor GroundOf(const RowState& state) const;
  void PaintFrame(QPainter& painter, const QRect& area, int width) const;
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
