#pragma once

#include <string>
#include <string_view>

#include "ferrowind/export.h"

namespace ferrowind::platform {

/// Appends `text`, which is UTF-8, as a JSON text in quotation marks.
FERROWIND_EXPORT void AppendJsonText(std::string_view text, std::string& json);

/// `text` alone, likewise.
[[nodiscard]] FERROWIND_EXPORT std::string JsonText(std::string_view text);

}  // namespace ferrowind::platform
