// How a grid is painted and scrolled.
#include <algorithm>

#include "ferrowind/adapters/win32/base/buffered_paint.h"
#include "ferrowind/adapters/win32/base/twips.h"
#include "ferrowind/adapters/win32/controls/scroll_bars.h"
#include "ferrowind/adapters/win32/grid/grid.h"
#include "ferrowind/adapters/win32/grid/grid_painter.h"

namespace ferrowind::win32 {

void Win32Grid::Resized() {
  constexpr int kAroundText = 6;
  geometry_.SetLineHeight(TextSize("X").cy + Scaled(kAroundText, DotsPerInch()));
  RECT room{};
  GetClientRect(Handle(), &room);
  geometry_.SetRoom({room.right, room.bottom});
  geometry_.SetFirstRow(geometry_.FirstRow());
  geometry_.SetScrolledX(geometry_.ScrolledX());
  ShowScrollBars();
  Repaint();
}

void Win32Grid::ShowScrollBars() {
  SetScrollBar(Handle(), SB_VERT, RowCount(), static_cast<int>(geometry_.RowsOnPage()),
               static_cast<int>(geometry_.FirstRow()));
  RECT room{};
  GetClientRect(Handle(), &room);
  SetScrollBar(Handle(), SB_HORZ, static_cast<int>(geometry_.TotalWidth()), static_cast<int>(room.right),
               static_cast<int>(geometry_.ScrolledX()));
}

void Win32Grid::Scroll(int bar, WORD request) {
  const int line = bar == SB_VERT ? 1 : static_cast<int>(geometry_.LineHeight());
  const auto place = ScrolledTo(Handle(), bar, request, line);
  if (!place) return;
  if (bar == SB_VERT) {
    ScrollTo(static_cast<std::uint32_t>(std::max(0, *place)));
  } else {
    geometry_.SetScrolledX(*place);
    ShowScrollBars();
    Repaint();
  }
}

void Win32Grid::ScrollTo(std::uint32_t first_row) {
  geometry_.SetFirstRow(first_row);
  ShowScrollBars();
  Repaint();
}

void Win32Grid::BringIntoSight(std::uint32_t row) {
  const std::uint32_t page = geometry_.RowsOnPage();
  if (row < geometry_.FirstRow()) {
    ScrollTo(row);
  } else if (row >= geometry_.FirstRow() + page) {
    ScrollTo(row - page + 1);
  }
}

void Win32Grid::Paint() {
  const BufferedPaint paint(Handle());
  if (paint.Context() == nullptr) return;
  const GridPainter painter(paint.Context(), Font(), {content_, geometry_, selection_, Colors(), Words()});
  painter.Paint(paint.Room(), GetFocus() == Handle());
}

}  // namespace ferrowind::win32
