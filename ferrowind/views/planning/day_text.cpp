#include "ferrowind/views/planning/day_text.h"

namespace ferrowind {

std::string DateText(const platform::Locale& locale, const platform::Date& day) {
  return std::to_string(day.Day()) + " " + locale.MonthName(day.Month()) + " " + std::to_string(day.Year());
}

std::string DayText(const platform::Locale& locale, const platform::Date& day) {
  return locale.WeekdayName(day.Weekday()) + " " + DateText(locale, day);
}

}  // namespace ferrowind
