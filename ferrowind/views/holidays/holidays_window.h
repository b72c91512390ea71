#pragma once

#include <cstdint>
#include <memory>

#include "ferrowind/control/grid_fields.h"

namespace ferrowind {

/// The modes of the Holidays window: rules for the day that it was opened for, or for the whole calendar.
inline constexpr std::int32_t kSingleDayMode = 0;
inline constexpr std::int32_t kWholeCalendarMode = 1;

/// What the Calendars window needs of the Holidays window that it opens.
class HolidaysWindow {
 public:
  virtual ~HolidaysWindow() = default;
  /// Makes the window ready for a day (1 = 1 January) of a calendar; called once. False when loading failed;
  /// the failure has been reported.
  virtual bool Init(std::shared_ptr<GridFields> holiday_headers, std::int32_t mode, std::int32_t year,
                    std::int32_t currency_id, std::int32_t day_of_year) = 0;
  /// Returns once the window is closed.
  virtual void ShowModal() = 0;
  /// 1 when the window was left by "Assign", else 0.
  [[nodiscard]] virtual std::int32_t Result() const = 0;
  virtual void Unload() = 0;
  /// Closes the window; false when it refuses.
  virtual bool ForceClosing() = 0;
};

}  // namespace ferrowind
