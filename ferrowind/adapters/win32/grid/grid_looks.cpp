// How a grid is painted and scrolled.
#include <algorithm>

#include "ferrowind/adapters/win32/base/handles.h"
#include "ferrowind/adapters/win32/base/twips.h"
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
  SCROLLINFO rows{};
  rows.cbSize = sizeof rows;
  rows.fMask = SIF_PAGE | SIF_POS | SIF_RANGE | SIF_DISABLENOSCROLL;
  rows.nMax = std::max(0, RowCount() - 1);
  rows.nPage = geometry_.RowsOnPage();
  rows.nPos = static_cast<int>(geometry_.FirstRow());
  SetScrollInfo(Handle(), SB_VERT, &rows, TRUE);
  RECT room{};
  GetClientRect(Handle(), &room);
  SCROLLINFO columns{};
  columns.cbSize = sizeof columns;
  columns.fMask = SIF_PAGE | SIF_POS | SIF_RANGE | SIF_DISABLENOSCROLL;
  columns.nMax = static_cast<int>(std::max<LONG>(0, geometry_.TotalWidth() - 1));
  columns.nPage = static_cast<UINT>(room.right);
  columns.nPos = static_cast<int>(geometry_.ScrolledX());
  SetScrollInfo(Handle(), SB_HORZ, &columns, TRUE);
}

void Win32Grid::Scroll(int bar, WORD request) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  GetScrollInfo(Handle(), bar, &info);
  const int line = bar == SB_VERT ? 1 : static_cast<int>(geometry_.LineHeight());
  const int page = std::max(1, static_cast<int>(info.nPage) - line);
  int place = info.nPos;
  switch (request) {
    case SB_LINEUP:
      place -= line;
      break;
    case SB_LINEDOWN:
      place += line;
      break;
    case SB_PAGEUP:
      place -= page;
      break;
    case SB_PAGEDOWN:
      place += page;
      break;
    case SB_TOP:
      place = 0;
      break;
    case SB_BOTTOM:
      place = info.nMax;
      break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      place = info.nTrackPos;
      break;
    default:
      return;
  }
  if (bar == SB_VERT) {
    ScrollTo(static_cast<std::uint32_t>(std::max(0, place)));
  } else {
    geometry_.SetScrolledX(place);
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
  PAINTSTRUCT paint{};
  const HDC window = BeginPaint(Handle(), &paint);
  RECT room{};
  GetClientRect(Handle(), &room);
  const UniqueMemoryContext memory(CreateCompatibleDC(window));
  const UniqueBitmap bitmap(CreateCompatibleBitmap(window, room.right, room.bottom));
  if (memory != nullptr && bitmap != nullptr) {
    const Selected drawn(memory.get(), bitmap.get());
    const GridPainter painter(memory.get(), Font(), content_, geometry_, selection_);
    painter.Paint(room, GetFocus() == Handle(), DotsPerInch());
    BitBlt(window, 0, 0, room.right, room.bottom, memory.get(), 0, 0, SRCCOPY);
  }
  EndPaint(Handle(), &paint);
}

}  // namespace ferrowind::win32
