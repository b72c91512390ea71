#pragma once

#include <string>

#include "ferrowind/almanac/date_words.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::host {

/// "14 April 2028": how sentences of the program write a day, whatever the locale.
[[nodiscard]] inline std::string EnglishDay(const platform::Date& day) {
  return almanac::LongDate(day.Serial()).InEnglish();
}

}  // namespace ferrowind::host
