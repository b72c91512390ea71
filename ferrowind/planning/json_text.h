#pragma once

#include <string>
#include <string_view>

namespace ferrowind::planning {

/// `text` (UTF-8) as a JSON string with its quotation marks.
[[nodiscard]] std::string JsonText(std::string_view text);

}  // namespace ferrowind::planning
