#pragma once

#include <string>

namespace ferrowind::host {

/// A connection string, or an argument of a program that holds one, as others may see it: without passwords.
/// Those of a server's are found by the library that connects; in any other text what follows the first sign
/// of one is hidden.
[[nodiscard]] std::string ShownConnection(const std::string& text);

}  // namespace ferrowind::host
