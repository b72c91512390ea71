#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/export.h"

namespace ferrowind::business_days {

/// The codes in "EUR,usd", in capitals. Whether there are such currencies is not looked at: of an empty text
/// it is one code, which is empty.
[[nodiscard]] FERROWIND_EXPORT std::vector<std::string> ReadCurrencyCodes(std::string_view text);

}  // namespace ferrowind::business_days
