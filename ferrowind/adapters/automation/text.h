#pragma once

#include <string>
#include <string_view>

#include <oaidl.h>

namespace ferrowind::automation {

///@{
/// Texts of the platform are UTF-16 and ours UTF-8. What is not text on one side, such as half a pair of
/// surrogates, is U+FFFD on the other. NUL is a character like any other.
[[nodiscard]] std::string Utf8(std::wstring_view text);
[[nodiscard]] std::wstring Utf16(std::string_view text);
///@}

/// The text of a BSTR, which stays the caller's; null is the empty text.
[[nodiscard]] std::string Utf8OfBstr(BSTR text);
/// A new BSTR, the caller's, never null.
[[nodiscard]] BSTR NewBstr(std::string_view text);

}  // namespace ferrowind::automation
