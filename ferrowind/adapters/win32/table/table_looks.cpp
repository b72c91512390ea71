// How a table is measured, scrolled and painted.
#include <algorithm>

#include "ferrowind/adapters/win32/base/buffered_paint.h"
#include "ferrowind/adapters/win32/base/handles.h"
#include "ferrowind/adapters/win32/base/twips.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/table/cell_words.h"
#include "ferrowind/adapters/win32/table/table.h"
#include "ferrowind/adapters/win32/table/table_painter.h"

namespace ferrowind::win32 {
namespace {

/// In pixels of 96 to the inch.
constexpr int kWidestFit = 320;
/// Enough to judge what the others are like.
constexpr std::size_t kRowsMeasured = 500;

}  // namespace

void Win32Table::Resized() {
  constexpr int kAroundText = 8;
  geometry_.SetLineHeight(TextSize("X").cy + Scaled(kAroundText, DotsPerInch()));
  RECT room{};
  GetClientRect(Handle(), &room);
  const bool is_lower = room.bottom < geometry_.Room().cy;
  geometry_.SetRoom({room.right, room.bottom});
  geometry_.SetFirstRow(geometry_.FirstRow());
  ShareOutRoom();
  // More rows may have come on show than were: the current one stays among them.
  if (is_lower) BringIntoSight();
  ShowScrollBars();
  Repaint();
}

void Win32Table::MeasureColumns(bool forgets) {
  const auto& columns = content_.Columns();
  if (forgets) wishes_.assign(columns.size(), {});
  wishes_.resize(columns.size());
  const WindowContext context(Handle());
  const auto unscaled = [dpi = DotsPerInch()](LONG pixels) {
    return MulDiv(static_cast<int>(pixels), USER_DEFAULT_SCREEN_DPI, static_cast<int>(dpi)) + 1;
  };
  const std::size_t rows = std::min(content_.RowCount(), kRowsMeasured);
  for (std::size_t column = 0; column < columns.size(); ++column) {
    table_engine::ColumnWish& wish = wishes_[column];
    const LONG beside_caption = 2 * geometry_.Pad() + (sorts_ ? geometry_.LineHeight() / 2 : 0);
    wish.caption = unscaled(TextSize(columns[column].caption).cx + beside_caption);
    int fitting = wish.caption;
    for (std::size_t row = 0; row < rows && fitting < kWidestFit; ++row) {
      const bool has_box = column == 0 && content_.RowAt(row).checked.has_value();
      fitting = std::max(fitting, unscaled(FittingWidth(context.Get(), Font(), geometry_,
                                                        content_.CellAt(row, column), has_box)));
    }
    fitting = std::min(fitting, kWidestFit);
    wish.stretches = columns[column].stretches;
    wish.fitting = wish.stretches ? fitting : std::max(wish.fitting, fitting);
  }
  ShareOutRoom();
}

void Win32Table::ShareOutRoom() {
  // Between new columns and their measure.
  if (wishes_.size() != content_.Columns().size()) return;
  const auto dpi = static_cast<int>(DotsPerInch());
  const int room = MulDiv(static_cast<int>(geometry_.Room().cx), USER_DEFAULT_SCREEN_DPI, dpi);
  std::vector<LONG> widths;
  for (const int width : table_engine::WidthsWithin(room, wishes_))
    widths.push_back(MulDiv(width, dpi, USER_DEFAULT_SCREEN_DPI));
  geometry_.SetWidths(std::move(widths));
  ShowScrollBars();
  Repaint();
}

void Win32Table::ShowScrollBars() {
  SetScrollBar(Handle(), SB_VERT, static_cast<int>(RowCount()), static_cast<int>(geometry_.RowsOnPage()),
               static_cast<int>(geometry_.FirstRow()));
  SetScrollBar(Handle(), SB_HORZ, static_cast<int>(geometry_.TotalWidth()),
               static_cast<int>(geometry_.Room().cx), static_cast<int>(geometry_.ScrolledX()));
}

void Win32Table::Scroll(int bar, WORD request) {
  const int line = bar == SB_VERT ? 1 : static_cast<int>(geometry_.LineHeight());
  const auto place = ScrolledTo(Handle(), bar, request, line);
  if (!place) return;
  if (bar == SB_VERT) {
    ScrollTo(static_cast<std::size_t>(std::max(0, *place)));
  } else {
    geometry_.SetScrolledX(*place);
    ShowScrollBars();
    Repaint();
  }
}

void Win32Table::ScrollTo(std::size_t first_row) {
  geometry_.SetFirstRow(first_row);
  ShowScrollBars();
  Repaint();
}

void Win32Table::BringIntoSight() {
  const auto row = selection_.Current();
  if (!row) return;
  const std::size_t page = geometry_.RowsOnPage();
  if (*row < geometry_.FirstRow()) {
    ScrollTo(*row);
  } else if (*row >= geometry_.FirstRow() + page) {
    ScrollTo(*row - page + 1);
  }
  if (!selects_cells_ || current_column_ >= geometry_.Widths().size()) return;
  const RECT header = geometry_.HeaderArea(current_column_);
  const LONG beyond = std::min(header.right - geometry_.Room().cx, header.left);
  if (header.left < 0) geometry_.SetScrolledX(geometry_.ScrolledX() + header.left);
  if (beyond > 0) geometry_.SetScrolledX(geometry_.ScrolledX() + beyond);
  ShowScrollBars();
}

void Win32Table::Paint() {
  const BufferedPaint paint(Handle());
  if (paint.Context() == nullptr) return;
  const TablePainter painter(
      paint.Context(), Font(),
      {.content = content_,
       .geometry = geometry_,
       .selection = selection_,
       .colors = Colors(),
       .current_column = selects_cells_ ? std::optional(current_column_) : std::nullopt,
       .selects_many = selects_many_,
       .has_focus = GetFocus() == Handle(),
       .is_enabled = IsWindowEnabled(Handle()) != 0,
       .empty_text = empty_text_});
  painter.Paint(paint.Room());
}

void Win32Table::ShowTipOf(const TableHit& hit) {
  std::string tip;
  if (hit.part == TableHit::Part::kCell) {
    const platform::TableCell& cell = content_.CellAt(hit.row, hit.column);
    const bool has_box = hit.column == 0 && content_.RowAt(hit.row).checked.has_value();
    const WindowContext context(Handle());
    const bool is_cut =
        FittingWidth(context.Get(), Font(), geometry_, cell, has_box) > geometry_.Widths()[hit.column];
    if (is_cut || cell.text.empty()) tip = FromWide(SpokenText(cell, Words()));
    if (!cell.description.empty() && cell.description != tip)
      tip += (tip.empty() ? "" : " \xE2\x80\x93 ") + cell.description;
  }
  if (tip == tip_) return;
  tip_ = tip;
  Host().SetTip(Handle(), tip_);
}

}  // namespace ferrowind::win32
