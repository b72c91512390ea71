#pragma once

#include <string>
#include <string_view>

namespace ferrowind::postgres {

/// `text` as a literal of a statement, whatever the server's setting for backslashes is. UTF-8 without NUL.
[[nodiscard]] std::string Literal(std::string_view text);

/// `name` as an identifier of a statement, in its own letter case. UTF-8 without NUL.
[[nodiscard]] std::string Identifier(std::string_view name);

}  // namespace ferrowind::postgres
