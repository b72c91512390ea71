#pragma once

#include <string>

namespace ferrowind::win32 {

/// The caption as the platform's controls and menus take it: "&" is a letter like others, and the first
/// letter that is `mnemonic`, letter case ignored, is marked as the access key; 0 for none.
[[nodiscard]] std::wstring MarkedCaption(const std::string& caption, wchar_t mnemonic = 0);

}  // namespace ferrowind::win32
