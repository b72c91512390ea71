#include "ferrowind/adapters/win32/grid/grid_painter.h"

#include <algorithm>
#include <array>

#include "ferrowind/adapters/win32/base/wide_text.h"

namespace ferrowind::win32 {
namespace {

UniqueFont Variant(HFONT font, bool is_bold, bool is_struck) {
  LOGFONTW design{};
  GetObjectW(font, sizeof design, &design);
  if (is_bold) design.lfWeight = FW_BOLD;
  design.lfStrikeOut = is_struck ? TRUE : FALSE;
  return UniqueFont(CreateFontIndirectW(&design));
}

constexpr UINT kOneLine = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;

}  // namespace

GridPainter::GridPainter(HDC context, HFONT font, const Subject& subject)
    : context_(context),
      content_(subject.content),
      geometry_(subject.geometry),
      selection_(subject.selection),
      colors_(subject.colors),
      words_(subject.words),
      font_(font),
      bold_(Variant(font, true, false)),
      struck_(Variant(font, false, true)),
      bold_struck_(Variant(font, true, true)) {}

void GridPainter::Paint(const RECT& room, bool has_focus) const {
  Fill(room, colors_.window);
  SetBkMode(context_, TRANSPARENT);
  const Selected font(context_, font_);
  for (std::uint32_t row = geometry_.FirstRow(); row < content_.Rows().RowCount(); ++row) {
    const RECT area = geometry_.RowArea(row);
    if (area.top >= room.bottom) break;
    PaintRow(row, area, has_focus);
  }
  PaintHeaders();
  PaintBox();
}

void GridPainter::Fill(const RECT& area, COLORREF color) const {
  // The platform's brush for such fills, which takes any colour.
  SetDCBrushColor(context_, color);
  FillRect(context_, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void GridPainter::Text(const std::wstring& text, RECT area, UINT format) const {
  area.left += Pad();
  area.right -= Pad();
  DrawTextW(context_, text.c_str(), static_cast<int>(text.size()), &area, kOneLine | format);
}

void GridPainter::DrawArrow(const RECT& area, Arrow arrow) const {
  const LONG size = geometry_.LineHeight() / 4;
  const LONG x = area.left + Pad() + size;
  const LONG y = (area.top + area.bottom) / 2;
  std::array<POINT, 3> points{};
  switch (arrow) {
    case Arrow::kUp:
      points = {{{x - size, y + size / 2}, {x + size, y + size / 2}, {x, y - size / 2}}};
      break;
    case Arrow::kDown:
      points = {{{x - size, y - size / 2}, {x + size, y - size / 2}, {x, y + size / 2}}};
      break;
    case Arrow::kRight:
      points = {{{x - size / 2, y - size}, {x - size / 2, y + size}, {x + size / 2, y}}};
      break;
  }
  const UniqueBrush brush(CreateSolidBrush(GetTextColor(context_)));
  const Selected filled(context_, brush.get());
  const Selected without_line(context_, GetStockObject(NULL_PEN));
  Polygon(context_, points.data(), static_cast<int>(points.size()));
}

void GridPainter::PaintHeaders() const {
  const RECT headers = geometry_.HeadersArea();
  Fill(headers, colors_.face);
  SetTextColor(context_, colors_.face_text);
  const LONG arrow_room = geometry_.LineHeight();
  for (const std::int16_t column : geometry_.Order()) {
    RECT area = geometry_.HeaderArea(column);
    if (area.right <= headers.left || area.left >= headers.right) continue;
    const std::int32_t order = content_.SortKeys().OrderOf(column);
    const UINT side = content_.Cells().IsNumberColumn(column) ? DT_RIGHT : DT_LEFT;
    RECT text = area;
    if (order != platform::kSortNone) {
      text.right = std::max(text.left, text.right - arrow_room + Pad());
      const RECT at_end{area.right - arrow_room, area.top, area.right, area.bottom};
      DrawArrow(at_end, order == platform::kSortAscending ? Arrow::kUp : Arrow::kDown);
    }
    Text(ToWide(content_.Columns()[column].Caption()), text, side);
    const RECT separator{area.right - 1, area.top + Pad(), area.right, area.bottom - Pad()};
    Fill(separator, colors_.line);
  }
  Fill({headers.left, headers.bottom - 1, headers.right, headers.bottom}, colors_.line);
}

void GridPainter::PaintBox() const {
  const RECT box = geometry_.BoxArea();
  if (box.bottom == box.top) return;
  Fill(box, colors_.face);
  Fill({box.left, box.bottom - 1, box.right, box.bottom}, colors_.line);
  const std::int32_t count = content_.GroupKeys().Count();
  if (count == 0) {
    SetTextColor(context_, colors_.face_text);
    Text(words_.Translated("Drag a column header here to group by that column"), box, DT_LEFT);
    return;
  }
  SetTextColor(context_, colors_.text);
  for (std::int32_t position = 1; position <= count; ++position) {
    const auto key = content_.GroupKeys().Item(position);
    RECT chip = geometry_.ChipArea(position);
    Fill(chip, colors_.muted);
    InflateRect(&chip, -1, -1);
    Fill(chip, colors_.window);
    RECT text = chip;
    text.right -= geometry_.LineHeight();
    Text(ToWide(content_.Columns()[key->ColIndex].Caption()), text, DT_LEFT);
    const RECT at_end{chip.right - geometry_.LineHeight(), chip.top, chip.right, chip.bottom};
    DrawArrow(at_end, key->SortOrder == platform::kSortDescending ? Arrow::kDown : Arrow::kUp);
  }
}

void GridPainter::PaintRow(std::uint32_t row, const RECT& area, bool has_focus) const {
  const bool is_chosen = selection_.IsChosen(row);
  const auto shown = content_.Rows().RowAt(row);
  const COLORREF chosen_text = has_focus ? colors_.highlight_text : colors_.faint_highlight_text;
  const COLORREF plain_text = shown.is_group ? colors_.face_text : colors_.text;
  if (shown.is_group) Fill(area, colors_.face);
  if (is_chosen) Fill(area, has_focus ? colors_.highlight : colors_.faint_highlight);
  SetTextColor(context_, is_chosen ? chosen_text : plain_text);
  if (shown.is_group) {
    PaintGroup(shown.group, area);
  } else {
    PaintRecord(content_.Rows().RecordAt(shown.position), area, is_chosen);
  }
  Fill({area.left, area.bottom - 1, area.right, area.bottom}, colors_.line);
  if (has_focus && selection_.Current() == row) DrawFocusRect(context_, &area);
}

void GridPainter::PaintGroup(grid_engine::GroupId group, RECT area) const {
  area.left += geometry_.IndentOf(group.level) - geometry_.ScrolledX();
  DrawArrow(area, content_.Rows().Groups().IsExpanded(group) ? Arrow::kDown : Arrow::kRight);
  area.left += geometry_.LineHeight();
  const Selected font(context_, bold_.get());
  Text(content_.LabelOf(group), area, DT_LEFT);
}

HFONT GridPainter::FontOf(const grid_content::RowLook& look) const {
  const HFONT plain = look.is_struck_through ? struck_.get() : font_;
  const HFONT bold = look.is_struck_through ? bold_struck_.get() : bold_.get();
  return look.is_bold ? bold : plain;
}

LONG GridPainter::TextWidthOf(std::int16_t column, grid_engine::Record record) const {
  const std::wstring text = content_.Cells().ShownText(column, record);
  const Selected font(context_, FontOf(content_.LookOf(record)));
  SIZE size{};
  GetTextExtentPoint32W(context_, text.c_str(), static_cast<int>(text.size()), &size);
  return size.cx;
}

void GridPainter::PaintRecord(grid_engine::Record record, const RECT& area, bool is_chosen) const {
  const grid_content::RowLook look = content_.LookOf(record);
  const Selected font(context_, FontOf(look));
  if (look.fore_color && !is_chosen)
    SetTextColor(context_, RGB(look.fore_color->red, look.fore_color->green, look.fore_color->blue));
  for (const std::int16_t column : geometry_.Order()) {
    RECT cell = geometry_.HeaderArea(column);
    if (cell.right <= area.left || cell.left >= area.right || cell.right == cell.left) continue;
    cell.top = area.top;
    cell.bottom = area.bottom;
    Text(content_.Cells().ShownText(column, record), cell,
         content_.Cells().ShowsNumber(column, record) ? DT_RIGHT : DT_LEFT);
  }
}

}  // namespace ferrowind::win32
