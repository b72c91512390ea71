#include "ferrowind/adapters/win32/base/buffered_paint.h"

namespace ferrowind::win32 {

BufferedPaint::BufferedPaint(HWND window) : window_(window) {
  BeginPaint(window_, &paint_);
  GetClientRect(window_, &room_);
  memory_.reset(CreateCompatibleDC(paint_.hdc));
  if (memory_ != nullptr) bitmap_.reset(CreateCompatibleBitmap(paint_.hdc, room_.right, room_.bottom));
  if (bitmap_ != nullptr) before_ = SelectObject(memory_.get(), bitmap_.get());
}

BufferedPaint::~BufferedPaint() {
  if (bitmap_ != nullptr) {
    BitBlt(paint_.hdc, 0, 0, room_.right, room_.bottom, memory_.get(), 0, 0, SRCCOPY);
    SelectObject(memory_.get(), before_);
  }
  EndPaint(window_, &paint_);
}

}  // namespace ferrowind::win32
