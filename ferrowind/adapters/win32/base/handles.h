#pragma once

#include <memory>
#include <type_traits>

#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::win32 {

///@{
/// Frees a handle of the platform when its owner goes.
struct GdiObjectFreer {
  void operator()(HGDIOBJ object) const noexcept { DeleteObject(object); }
};
struct MenuFreer {
  void operator()(HMENU menu) const noexcept { DestroyMenu(menu); }
};
struct DeviceContextFreer {
  void operator()(HDC context) const noexcept { DeleteDC(context); }
};
struct ImageListFreer {
  void operator()(HIMAGELIST list) const noexcept { ImageList_Destroy(list); }
};
///@}

using UniqueFont = std::unique_ptr<std::remove_pointer_t<HFONT>, GdiObjectFreer>;
using UniqueBrush = std::unique_ptr<std::remove_pointer_t<HBRUSH>, GdiObjectFreer>;
using UniquePen = std::unique_ptr<std::remove_pointer_t<HPEN>, GdiObjectFreer>;
using UniqueBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, GdiObjectFreer>;
using UniqueMenu = std::unique_ptr<std::remove_pointer_t<HMENU>, MenuFreer>;
using UniqueMemoryContext = std::unique_ptr<std::remove_pointer_t<HDC>, DeviceContextFreer>;
using UniqueImageList = std::unique_ptr<std::remove_pointer_t<HIMAGELIST>, ImageListFreer>;

/// Selects a drawing object into a device context for as long as this lives.
class Selected {
 public:
  Selected(HDC context, HGDIOBJ object) : context_(context), before_(SelectObject(context, object)) {}
  ~Selected() { SelectObject(context_, before_); }
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;

 private:
  HDC context_;
  HGDIOBJ before_;
};

/// The device context of a window, to measure in.
class WindowContext {
 public:
  explicit WindowContext(HWND window) : window_(window), context_(GetDC(window)) {}
  ~WindowContext() { ReleaseDC(window_, context_); }
  WindowContext(const WindowContext&) = delete;
  WindowContext& operator=(const WindowContext&) = delete;

  [[nodiscard]] HDC Get() const { return context_; }

 private:
  HWND window_;
  HDC context_;
};

}  // namespace ferrowind::win32
