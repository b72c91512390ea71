#include "ferrowind/adapters/win32/controls/scroll_bars.h"

#include <algorithm>

namespace ferrowind::win32 {

void SetScrollBar(HWND window, int bar, int count, int page, int place) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_PAGE | SIF_POS | SIF_RANGE | SIF_DISABLENOSCROLL;
  info.nMax = std::max(0, count - 1);
  info.nPage = static_cast<UINT>(std::max(0, page));
  info.nPos = place;
  SetScrollInfo(window, bar, &info, TRUE);
}

std::optional<int> ScrolledTo(HWND window, int bar, WORD request, int line) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  GetScrollInfo(window, bar, &info);
  const int page = std::max(1, static_cast<int>(info.nPage) - line);
  switch (request) {
    case SB_LINEUP:
      return info.nPos - line;
    case SB_LINEDOWN:
      return info.nPos + line;
    case SB_PAGEUP:
      return info.nPos - page;
    case SB_PAGEDOWN:
      return info.nPos + page;
    case SB_TOP:
      return 0;
    case SB_BOTTOM:
      return info.nMax;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      return info.nTrackPos;
    default:
      return std::nullopt;
  }
}

int WheelSteps::Take(WPARAM w_param) {
  left_over_ += GET_WHEEL_DELTA_WPARAM(w_param);
  const int steps = left_over_ / WHEEL_DELTA;
  left_over_ -= steps * WHEEL_DELTA;
  return steps;
}

}  // namespace ferrowind::win32
