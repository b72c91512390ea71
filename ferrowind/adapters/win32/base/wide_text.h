#pragma once

#include <string>
#include <string_view>

namespace ferrowind::win32 {

///@{
/// Between the component's UTF-8 and the platform's UTF-16. What is no text in the one becomes replacement
/// characters in the other.
[[nodiscard]] std::wstring ToWide(std::string_view text);
[[nodiscard]] std::string FromWide(std::wstring_view text);
///@}

}  // namespace ferrowind::win32
