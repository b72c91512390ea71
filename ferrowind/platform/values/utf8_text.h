#pragma once

#include <cstdint>
#include <string>

#include "ferrowind/export.h"

namespace ferrowind::platform {

/// Puts the character of a code point, which is one up to U+10FFFF, behind `text` in UTF-8.
FERROWIND_EXPORT void AppendUtf8(std::uint32_t code, std::string& text);

}  // namespace ferrowind::platform
