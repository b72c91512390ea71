#pragma once

#include <string>

#include "ferrowind/platform/services/locale.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind {

/// "14 April 2028", with the locale's name of the month.
[[nodiscard]] std::string DateText(const platform::Locale& locale, const platform::Date& day);

/// "Friday 14 April 2028", with the locale's names.
[[nodiscard]] std::string DayText(const platform::Locale& locale, const platform::Date& day);

}  // namespace ferrowind
