#pragma once

#include <functional>
#include <optional>
#include <string>

namespace ferrowind::host {

/// Asks the user `question`, and tells whether the answer was yes; nothing when there is nobody to ask.
using Confirmation = std::function<std::optional<bool>(const std::string& question)>;

/// Asks on the terminal of standard input, if it is one.
[[nodiscard]] std::optional<bool> AskOnTerminal(const std::string& question);

}  // namespace ferrowind::host
