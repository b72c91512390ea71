#pragma once

#include <optional>

#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::win32 {

///@{
/// A scroll bar of a window, SB_VERT or SB_HORZ, over so many units of which a page is in sight.
void SetScrollBar(HWND window, int bar, int count, int page, int place);
/// Where a WM_VSCROLL or WM_HSCROLL asks to go, by steps of `line`; nothing when it asks for nothing.
[[nodiscard]] std::optional<int> ScrolledTo(HWND window, int bar, WORD request, int line);
///@}

/// The steps of a mouse wheel, which may come in parts.
class WheelSteps {
 public:
  /// The whole steps up that WM_MOUSEWHEEL makes full.
  [[nodiscard]] int Take(WPARAM w_param);

 private:
  int left_over_ = 0;
};

}  // namespace ferrowind::win32
