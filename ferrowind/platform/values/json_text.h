#pragma once

#include <string>
#include <string_view>

namespace ferrowind::platform {

/// Appends `text`, which is UTF-8, as a JSON text in quotation marks.
void AppendJsonText(std::string_view text, std::string& json);

/// `text` alone, likewise.
[[nodiscard]] std::string JsonText(std::string_view text);

}  // namespace ferrowind::platform
