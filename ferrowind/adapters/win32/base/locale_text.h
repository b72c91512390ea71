#pragma once

#include <string>

#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::win32 {

/// What the platform says of a locale, such as the name of a month (LOCALE_S...); "" where it says nothing.
/// `locale` is a name such as "de-CH", or null for that of the user.
[[nodiscard]] std::wstring LocaleText(const wchar_t* locale, LCTYPE kind);

}  // namespace ferrowind::win32
