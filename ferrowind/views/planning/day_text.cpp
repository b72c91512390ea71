#include "ferrowind/views/planning/day_text.h"

namespace ferrowind {

std::string DateText(const platform::Locale& locale, const platform::Date& day) {
  return locale.LongDateText(day);
}

std::string DayText(const platform::Locale& locale, const platform::Date& day) {
  return locale.LongDayText(day);
}

}  // namespace ferrowind
