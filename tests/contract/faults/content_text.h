#pragma once

#include <string>

#include "ferrowind/adapters/content/content_source.h"

namespace ferrowind::contract {

/// All content of a database in one text, by which two can be compared that the same calls have made at
/// different times: without the moments of its history, and what is computed from them.
[[nodiscard]] std::string TextOf(content::Source& source);

}  // namespace ferrowind::contract
