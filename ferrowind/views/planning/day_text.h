#pragma once

#include <string>

#include "ferrowind/platform/services/locale.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind {

/// "Friday 14 April 2028", with the locale's names.
[[nodiscard]] std::string DayText(const platform::Locale& locale, const platform::Date& day);

}  // namespace ferrowind
