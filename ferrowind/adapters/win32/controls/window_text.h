#pragma once

#include <string>

#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::win32 {

/// The whole text of a window.
[[nodiscard]] inline std::wstring WindowText(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
  const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1);
  text.resize(static_cast<std::size_t>(length));
  return text;
}

}  // namespace ferrowind::win32
