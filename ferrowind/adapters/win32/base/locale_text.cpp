#include "ferrowind/adapters/win32/base/locale_text.h"

#include <array>

namespace ferrowind::win32 {

std::wstring LocaleText(const wchar_t* locale, LCTYPE kind) {
  std::array<wchar_t, 128> text{};
  const int length = GetLocaleInfoEx(locale, kind, text.data(), static_cast<int>(text.size()));
  return length > 0 ? std::wstring(text.data()) : std::wstring();
}

}  // namespace ferrowind::win32
