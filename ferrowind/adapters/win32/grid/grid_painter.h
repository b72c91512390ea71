#pragma once

#include <cstdint>
#include <string>

#include "ferrowind/adapters/win32/base/handles.h"
#include "ferrowind/adapters/win32/base/theme.h"
#include "ferrowind/adapters/win32/base/wording.h"
#include "ferrowind/adapters/win32/controls/row_selection.h"
#include "ferrowind/adapters/win32/grid/grid_content.h"
#include "ferrowind/adapters/win32/grid/grid_geometry.h"

namespace ferrowind::win32 {

/// Paints a grid in the platform's colours, once.
class GridPainter {
 public:
  /// What is painted.
  struct Subject {
    const GridContent& content;
    const GridGeometry& geometry;
    const RowSelection& selection;
    const Theme& colors;
    const Wording& words;
  };
  /// All outlive the painter.
  GridPainter(HDC context, HFONT font, const Subject& subject);

  void Paint(const RECT& room, bool has_focus) const;
  /// Of the text of a cell, as it is painted.
  [[nodiscard]] LONG TextWidthOf(std::int16_t column, grid_engine::Record record) const;

 private:
  enum class Arrow { kUp, kDown, kRight };

  void PaintBox() const;
  void PaintHeaders() const;
  void PaintRow(std::uint32_t row, const RECT& area, bool has_focus) const;
  void PaintGroup(grid_engine::GroupId group, RECT area) const;
  void PaintRecord(grid_engine::Record record, const RECT& area, bool is_chosen) const;
  [[nodiscard]] HFONT FontOf(const grid_content::RowLook& look) const;
  void Text(const std::wstring& text, RECT area, UINT format) const;
  void Fill(const RECT& area, COLORREF color) const;
  /// In the colour of the text of now, at the left end of the area.
  void DrawArrow(const RECT& area, Arrow arrow) const;
  [[nodiscard]] LONG Pad() const { return geometry_.LineHeight() / 4; }

  HDC context_;
  const GridContent& content_;
  const GridGeometry& geometry_;
  const RowSelection& selection_;
  const Theme& colors_;
  const Wording& words_;
  HFONT font_;
  UniqueFont bold_;
  UniqueFont struck_;
  UniqueFont bold_struck_;
};

}  // namespace ferrowind::win32
