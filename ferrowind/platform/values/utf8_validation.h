#pragma once

#include <string_view>

#include "ferrowind/export.h"

namespace ferrowind::platform {

/// Whether `text` is well-formed UTF-8: no stray or missing bytes, overlong forms, surrogates, or code points
/// beyond U+10FFFF. Databases may store texts as they come, so engines ask before.
[[nodiscard]] FERROWIND_EXPORT bool IsWellFormedUtf8(std::string_view text);

}  // namespace ferrowind::platform
