#pragma once

#include <memory>

#include "ferrowind/platform/additions/additions.h"
#include "ferrowind/views/planning/planning_context.h"

namespace ferrowind {

/// The additions of planning to the given windows, in the order in which they stand there.
class PlanningAdditions : public platform::Additions {
 public:
  /// What `context` refers to must outlive the additions and every window that has them.
  explicit PlanningAdditions(const PlanningContext& context) : context_(context) {}

  [[nodiscard]] platform::WindowParts CalendarsParts() const override;
  [[nodiscard]] platform::WindowParts HolidaysParts() const override;
  [[nodiscard]] std::unique_ptr<platform::CalendarsAdditions> ForCalendars(
      platform::CalendarsScene& scene) override;
  [[nodiscard]] std::unique_ptr<platform::HolidaysAdditions> ForHolidays(
      platform::HolidaysScene& scene) override;

 private:
  PlanningContext context_;
};

}  // namespace ferrowind
