#pragma once

#include <string>

#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::win32 {

/// Puts a text, whose lines end by "\n", where the operator can paste it from, on behalf of that window. Does
/// nothing while another program holds the clipboard.
void PutOnClipboard(HWND owner, const std::wstring& text);

}  // namespace ferrowind::win32
