#pragma once

#include <memory>

#include "ferrowind/export.h"
#include "ferrowind/platform/additions/calendars_additions.h"
#include "ferrowind/platform/additions/holidays_additions.h"
#include "ferrowind/platform/additions/window_parts.h"

namespace ferrowind::platform {

/// What a host adds to the component's windows: controls, tools and columns behind those that the windows
/// have of their own, and what they do. Without additions the windows are exactly the given ones.
class FERROWIND_EXPORT Additions {
 public:
  virtual ~Additions() = default;

  ///@{
  /// Asked before a window of the kind is made; the same for each of them.
  [[nodiscard]] virtual WindowParts CalendarsParts() const = 0;
  [[nodiscard]] virtual WindowParts HolidaysParts() const = 0;
  ///@}

  ///@{
  /// The additions of a window that was just made with those parts; not null. They are dropped with it.
  [[nodiscard]] virtual std::unique_ptr<CalendarsAdditions> ForCalendars(CalendarsScene& scene) = 0;
  [[nodiscard]] virtual std::unique_ptr<HolidaysAdditions> ForHolidays(HolidaysScene& scene) = 0;
  ///@}
};

}  // namespace ferrowind::platform
