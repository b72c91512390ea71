#pragma once

#include <string>
#include <string_view>

namespace ferrowind::win32 {

/// Whether a keyboard has a key for it: letters of Latin alphabets and digits.
[[nodiscard]] bool CanBeMnemonic(wchar_t letter);

/// Whether its words have no such letter, as in Japanese, so that its access key must come from elsewhere.
[[nodiscard]] bool HasForeignWords(std::wstring_view caption);

/// The caption as the platform's controls and menus take it: "&" is a letter like others, and the first
/// letter that is `mnemonic`, letter case ignored, is marked as the access key; 0 for none. A caption of
/// foreign words gets it behind, in brackets.
[[nodiscard]] std::wstring MarkedCaption(const std::string& caption, wchar_t mnemonic = 0);

}  // namespace ferrowind::win32
