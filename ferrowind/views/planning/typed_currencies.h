#pragma once

#include <string>
#include <vector>

#include "ferrowind/planning/currency_list.h"

namespace ferrowind {

/// The currencies that an operator means by codes or numbers with blanks, commas or semicolons between them,
/// each once, in that order; "ALL" stands for all that have a calendar in `year`. A failure that says what is
/// wrong when one is unknown or no money, or when there is none. Fails as database_call.h says, too.
[[nodiscard]] std::vector<planning::Currency> TypedCurrencies(const std::string& text, int year);

/// The year that is typed; a failure that names the text when calendars cannot have it.
[[nodiscard]] int TypedYear(const std::string& text);

}  // namespace ferrowind
