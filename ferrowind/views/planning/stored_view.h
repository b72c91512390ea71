#pragma once

#include <cstdint>
#include <optional>
#include <utility>

#include "ferrowind/views/planning/calendars_addition.h"
#include "ferrowind/views/planning/planning_context.h"

namespace ferrowind {

/// Opens a Calendars window as the last one was left: on the calendar that was on show, where it was scrolled
/// to, and with or without the box to group by.
class StoredView : public CalendarsAddition {
 public:
  [[nodiscard]] static platform::WindowParts Parts() { return {}; }

  StoredView(const PlanningContext& context, platform::CalendarsScene& scene);

  void Started() override;
  void DaysShown() override;
  void Closing() override;

 private:
  void StoreCalendar();

  platform::CalendarsScene& scene_;
  /// Before that, what is on show is not what the operator chose.
  bool has_started_ = false;
  /// Currency and year as they are stored, 0 for none.
  std::optional<std::pair<std::int32_t, std::int32_t>> stored_;
};

}  // namespace ferrowind
