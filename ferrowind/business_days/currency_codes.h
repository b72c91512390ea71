#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/export.h"

namespace ferrowind::business_days {

/// The codes in "EUR,usd", in capitals; none in an empty text. Whether there are such currencies is not
/// looked at, but a place without a code, as in "EUR,", is the failure InvalidArgument.
[[nodiscard]] FERROWIND_EXPORT std::vector<std::string> ReadCurrencyCodes(std::string_view text);

/// The code in capitals. What is not three letters is the failure InvalidArgument.
[[nodiscard]] FERROWIND_EXPORT std::string ReadCurrencyCode(std::string_view text);

}  // namespace ferrowind::business_days
