#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/adapters/odbc/sql_interface.h"

namespace ferrowind::odbc {

/// A text as ODBC takes it: UTF-16, whatever the system.
using WideText = std::vector<SQLWCHAR>;

/// `text` with a NUL behind it. Precondition: it is well-formed UTF-8.
[[nodiscard]] WideText ToWide(std::string_view text);

/// `text` in UTF-8; nothing for one that is not well-formed.
[[nodiscard]] std::optional<std::string> FromWide(std::span<const SQLWCHAR> text);

}  // namespace ferrowind::odbc
