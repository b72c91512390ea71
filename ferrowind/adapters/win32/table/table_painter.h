#pragma once

#include <optional>
#include <string>

#include "ferrowind/adapters/table_engine/table_content.h"
#include "ferrowind/adapters/win32/base/handles.h"
#include "ferrowind/adapters/win32/base/theme.h"
#include "ferrowind/adapters/win32/controls/row_selection.h"
#include "ferrowind/adapters/win32/table/table_geometry.h"

namespace ferrowind::win32 {

/// Paints a table, once.
class TablePainter {
 public:
  /// What is painted.
  struct Subject {
    const table_engine::TableContent& content;
    const TableGeometry& geometry;
    const RowSelection& selection;
    const Theme& colors;
    /// The current cell's column, where a cell is current and not a row.
    std::optional<std::size_t> current_column;
    bool selects_many = false;
    bool has_focus = false;
    bool is_enabled = true;
    /// What stands in it while it has no rows.
    const std::wstring& empty_text;
  };
  /// All outlive the painter.
  TablePainter(HDC context, HFONT font, const Subject& subject);

  void Paint(const RECT& room) const;

 private:
  struct Shade {
    COLORREF ground;
    COLORREF text;
  };

  void Fill(const RECT& area, COLORREF color) const;
  void PaintHeaders() const;
  void PaintRow(std::size_t row, const RECT& area) const;
  void PaintCell(const RECT& cell, std::size_t row, std::size_t column, const Shade& shade) const;
  void PaintEmpty() const;
  [[nodiscard]] Shade ShadeOf(std::size_t row, std::size_t column) const;

  HDC context_;
  HFONT font_;
  UniqueFont bold_;
  Subject subject_;
};

/// The width at which a cell is read in full.
[[nodiscard]] LONG FittingWidth(HDC context, HFONT font, const TableGeometry& geometry,
                                const platform::TableCell& cell, bool has_box);

}  // namespace ferrowind::win32
