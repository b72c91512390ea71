#pragma once

#include "ferrowind/adapters/win32/base/handles.h"

namespace ferrowind::win32 {

/// The painting of a window's WM_PAINT into a picture, which is shown as a whole when this goes.
class BufferedPaint {
 public:
  explicit BufferedPaint(HWND window);
  ~BufferedPaint();
  BufferedPaint(const BufferedPaint&) = delete;
  BufferedPaint& operator=(const BufferedPaint&) = delete;

  /// Null when there is no memory for the picture, and nothing is painted.
  [[nodiscard]] HDC Context() const { return bitmap_ != nullptr ? memory_.get() : nullptr; }
  /// The client area.
  [[nodiscard]] const RECT& Room() const { return room_; }

 private:
  HWND window_;
  PAINTSTRUCT paint_{};
  RECT room_{};
  UniqueMemoryContext memory_;
  UniqueBitmap bitmap_;
  HGDIOBJ before_ = nullptr;
};

}  // namespace ferrowind::win32
