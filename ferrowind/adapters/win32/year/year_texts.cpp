#include "ferrowind/adapters/win32/year/year_texts.h"

#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/dates/date_words.h"

namespace ferrowind::win32 {

std::wstring TextOfDay(const year_engine::YearDays& days, const year_engine::YearPlace& place) {
  const std::wstring separator = L", ";
  std::wstring text = LongDate(days.DateOf(place.day));
  const std::string& description = days.DescriptionOf(place.calendar, place.day);
  if (!description.empty()) text += separator + ToWide(description);
  if (days.CalendarCount() == 1) return text;
  return ToWide(days.Content().calendars[static_cast<std::size_t>(place.calendar)].caption) + separator +
         text;
}

}  // namespace ferrowind::win32
