#pragma once

#include <string>

#include "ferrowind/planning/currency_list.h"
#include "ferrowind/platform/additions/calendars_scene.h"

namespace ferrowind {

/// The currency of the calendar that a window shows, as far as the window knows it: without its name.
[[nodiscard]] inline planning::Currency CurrencyOf(const platform::CalendarOnShow& calendar) {
  return {.id = calendar.currency_id, .code = calendar.currency};
}

/// What sentences and captions call that calendar.
[[nodiscard]] inline std::string CalendarName(const platform::CalendarOnShow& calendar) {
  return planning::CalendarName(CurrencyOf(calendar), calendar.year);
}

}  // namespace ferrowind
