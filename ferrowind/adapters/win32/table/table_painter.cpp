#include "ferrowind/adapters/win32/table/table_painter.h"

#include <algorithm>

#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/controls/shapes.h"
#include "ferrowind/adapters/win32/table/mark_painter.h"

namespace ferrowind::win32 {
namespace {

using platform::CellAlignment;
using platform::CellMark;
using platform::CellTone;

constexpr UINT kOneLine = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;

UINT SideOf(CellAlignment alignment) {
  switch (alignment) {
    case CellAlignment::kCentre:
      return DT_CENTER;
    case CellAlignment::kTrailing:
      return DT_RIGHT;
    case CellAlignment::kLeading:
      break;
  }
  return DT_LEFT;
}

UniqueFont BoldOf(HFONT font) {
  LOGFONTW design{};
  GetObjectW(font, sizeof design, &design);
  design.lfWeight = FW_BOLD;
  return UniqueFont(CreateFontIndirectW(&design));
}

LONG WidthOf(HDC context, const std::wstring& text) {
  SIZE size{};
  GetTextExtentPoint32W(context, text.c_str(), static_cast<int>(text.size()), &size);
  return size.cx;
}

/// Of mark, gap and text.
LONG ContentWidth(HDC context, const TableGeometry& geometry, const platform::TableCell& cell,
                  const std::wstring& text) {
  const LONG width = text.empty() ? 0 : WidthOf(context, text);
  if (cell.mark == CellMark::kNone) return width;
  return geometry.MarkSide() + (width > 0 ? geometry.Pad() + width : 0);
}

}  // namespace

LONG FittingWidth(HDC context, HFONT font, const TableGeometry& geometry, const platform::TableCell& cell,
                  bool has_box) {
  const UniqueFont bold = cell.tone == CellTone::kLoud ? BoldOf(font) : nullptr;
  const Selected selected(context, bold != nullptr ? bold.get() : font);
  const LONG box = has_box ? geometry.MarkSide() + geometry.Pad() : 0;
  return ContentWidth(context, geometry, cell, ToWide(cell.text)) + box + 2 * geometry.Pad() + 1;
}

TablePainter::TablePainter(HDC context, HFONT font, const Subject& subject)
    : context_(context), font_(font), bold_(BoldOf(font)), subject_(subject) {}

void TablePainter::Fill(const RECT& area, COLORREF color) const {
  SetDCBrushColor(context_, color);
  FillRect(context_, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void TablePainter::Paint(const RECT& room) const {
  Fill(room, subject_.colors.window);
  SetBkMode(context_, TRANSPARENT);
  const Selected font(context_, font_);
  if (subject_.geometry.RowCount() == 0) PaintEmpty();
  for (std::size_t row = subject_.geometry.FirstRow(); row < subject_.geometry.RowCount(); ++row) {
    const RECT area = subject_.geometry.RowArea(row);
    if (area.top >= room.bottom) break;
    PaintRow(row, area);
  }
  PaintHeaders();
}

void TablePainter::PaintHeaders() const {
  const Theme& colors = subject_.colors;
  const TableGeometry& geometry = subject_.geometry;
  const RECT headers = geometry.HeadersArea();
  Fill(headers, colors.face);
  SetTextColor(context_, colors.face_text);
  const auto& sorting = subject_.content.Sorted();
  for (std::size_t column = 0; column < geometry.Widths().size(); ++column) {
    const auto& shown = subject_.content.Columns()[column];
    const RECT area = geometry.HeaderArea(column);
    RECT text = area;
    InflateRect(&text, -geometry.Pad(), 0);
    if (sorting && sorting->column == column) {
      const LONG size = geometry.LineHeight() / 5;
      const double x = static_cast<double>(text.right - size);
      const double y = static_cast<double>(area.top + area.bottom) / 2;
      const double up = sorting->is_descending ? -1 : 1;
      const double half = static_cast<double>(size);
      Shapes(context_).Fill(
          {{x - half, y + up * half / 2}, {x + half, y + up * half / 2}, {x, y - up * half / 2}},
          colors.face_text);
      text.right -= 2 * size + geometry.Pad();
    }
    const std::wstring caption = ToWide(shown.caption);
    DrawTextW(context_, caption.c_str(), static_cast<int>(caption.size()), &text,
              kOneLine | SideOf(shown.alignment));
    Fill({area.right - 1, area.top + geometry.Pad(), area.right, area.bottom - geometry.Pad()}, colors.line);
  }
  Fill({headers.left, headers.bottom - 1, headers.right, headers.bottom}, colors.line);
}

TablePainter::Shade TablePainter::ShadeOf(std::size_t row, std::size_t column) const {
  const Theme& colors = subject_.colors;
  const bool is_row_chosen = subject_.selection.IsChosen(static_cast<std::uint32_t>(row));
  const bool is_current_row = subject_.selection.Current() == static_cast<std::uint32_t>(row);
  const bool is_current = is_current_row && subject_.current_column.value_or(column) == column;
  const bool is_chosen = subject_.current_column && !subject_.selects_many ? is_current : is_row_chosen;
  if (!is_chosen) return {colors.window, subject_.is_enabled ? colors.text : colors.muted};
  const bool is_strong = subject_.has_focus && (is_current || !subject_.current_column);
  return is_strong ? Shade{colors.highlight, colors.highlight_text}
                   : Shade{colors.faint_highlight, colors.faint_highlight_text};
}

void TablePainter::PaintRow(std::size_t row, const RECT& area) const {
  const TableGeometry& geometry = subject_.geometry;
  for (std::size_t column = 0; column < geometry.Widths().size(); ++column) {
    const RECT cell = geometry.CellArea(row, column);
    if (cell.right <= area.left || cell.left >= area.right) continue;
    const Shade shade = ShadeOf(row, column);
    Fill(cell, shade.ground);
    PaintCell(cell, row, column, shade);
    Fill({cell.right - 1, cell.top, cell.right, cell.bottom}, subject_.colors.line);
  }
  Fill({area.left, area.bottom - 1, area.right, area.bottom}, subject_.colors.line);
  if (!subject_.has_focus || subject_.selection.Current() != static_cast<std::uint32_t>(row)) return;
  RECT current = subject_.current_column ? geometry.CellArea(row, *subject_.current_column) : area;
  current.bottom -= 1;
  SetTextColor(context_, subject_.colors.text);
  SetBkColor(context_, subject_.colors.window);
  DrawFocusRect(context_, &current);
}

void TablePainter::PaintCell(const RECT& area, std::size_t row, std::size_t column,
                             const Shade& shade) const {
  const TableGeometry& geometry = subject_.geometry;
  const platform::TableCell& cell = subject_.content.CellAt(row, column);
  const LONG pad = geometry.Pad();
  RECT room = area;
  InflateRect(&room, -pad, 0);
  const auto& checked = subject_.content.RowAt(row).checked;
  if (column == 0 && checked) {
    const RECT box = geometry.BoxArea(row);
    PaintCheckBox(context_, {box.left, box.top}, geometry.MarkSide(), *checked, shade.text, shade.ground);
    room.left = box.right + pad;
  }
  const bool is_plain = shade.ground == subject_.colors.window;
  const COLORREF color = cell.tone == CellTone::kQuiet && is_plain ? subject_.colors.muted : shade.text;
  const Selected font(context_, cell.tone == CellTone::kLoud ? bold_.get() : font_);
  const std::wstring text = ToWide(cell.text);
  const CellAlignment alignment = subject_.content.Columns()[column].alignment;
  const LONG spare = std::max<LONG>(0, room.right - room.left - ContentWidth(context_, geometry, cell, text));
  if (alignment == CellAlignment::kCentre) room.left += spare / 2;
  if (alignment == CellAlignment::kTrailing) room.left += spare;
  if (cell.mark != CellMark::kNone) {
    const LONG top = (area.top + area.bottom - geometry.MarkSide()) / 2;
    PaintMark(context_, {room.left, top}, geometry.MarkSide(), cell.mark, color);
    room.left += geometry.MarkSide() + pad;
  }
  if (room.left >= room.right) return;
  SetTextColor(context_, color);
  DrawTextW(context_, text.c_str(), static_cast<int>(text.size()), &room, kOneLine | DT_LEFT);
}

void TablePainter::PaintEmpty() const {
  RECT area = subject_.geometry.RowsArea();
  const LONG margin = subject_.geometry.LineHeight() / 2;
  InflateRect(&area, -margin, -margin);
  SetTextColor(context_, subject_.colors.muted);
  DrawTextW(context_, subject_.empty_text.c_str(), static_cast<int>(subject_.empty_text.size()), &area,
            DT_CENTER | DT_WORDBREAK | DT_NOPREFIX);
  if (!subject_.has_focus) return;
  RECT focus = subject_.geometry.RowsArea();
  DrawFocusRect(context_, &focus);
}

}  // namespace ferrowind::win32
