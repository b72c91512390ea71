#pragma once

#include <stdexcept>

#include <windows.h>

namespace ferrowind::bench {

/// Has the whole window painted; throws std::runtime_error when nobody would see it.
inline void PaintNow(HWND window) {
  RECT left{};
  if (!IsWindowVisible(window) ||
      !RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN) ||
      GetUpdateRect(window, &left, FALSE)) {
    throw std::runtime_error("The rows were not painted");
  }
}

}  // namespace ferrowind::bench
