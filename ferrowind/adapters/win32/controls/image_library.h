#pragma once

#include <algorithm>

#include "ferrowind/adapters/win32/base/windows_api.h"

// The header of the image library needs the other one, and uses these two without their namespace.
// clang-format off
using std::max;
using std::min;
#include <objidl.h>
#include <gdiplus.h>
// clang-format on

namespace ferrowind::win32 {

/// The image library, ready for as long as this lives.
class ImageLibrary {
 public:
  ImageLibrary() {
    const Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&token_, &input, nullptr);
  }
  ~ImageLibrary() { Gdiplus::GdiplusShutdown(token_); }
  ImageLibrary(const ImageLibrary&) = delete;
  ImageLibrary& operator=(const ImageLibrary&) = delete;

 private:
  ULONG_PTR token_ = 0;
};

}  // namespace ferrowind::win32
