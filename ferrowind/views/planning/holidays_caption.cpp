#include "ferrowind/views/planning/holidays_caption.h"

#include "ferrowind/views/planning/day_text.h"

namespace ferrowind {

std::string HolidaysCaption::Caption(const std::string& given) {
  const platform::CalendarOnShow& target = scene_.Target();
  const auto day = scene_.TargetDay();
  return given + " - " + target.currency +
         (day ? ", " + DayText(locale_, *day) : " " + std::to_string(target.year));
}

}  // namespace ferrowind
