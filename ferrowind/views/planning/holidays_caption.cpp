#include "ferrowind/views/planning/holidays_caption.h"

#include "ferrowind/views/planning/currency_on_show.h"
#include "ferrowind/views/planning/day_text.h"

namespace ferrowind {

std::string HolidaysCaption::Caption(const std::string& given) {
  const platform::CalendarOnShow& target = scene_.Target();
  const auto day = scene_.TargetDay();
  return given + " - " +
         (day ? planning::UnmistakableCode(CurrencyOf(target)) + ", " + DayText(locale_, *day)
              : CalendarName(target));
}

}  // namespace ferrowind
