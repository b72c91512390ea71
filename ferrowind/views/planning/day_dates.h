#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "ferrowind/platform/services/clock.h"
#include "ferrowind/platform/services/locale.h"
#include "ferrowind/views/planning/calendars_addition.h"
#include "ferrowind/views/planning/planning_context.h"

namespace ferrowind {

/// Tells the days of a Calendars window better: their dates with the weekday, today with a mark, and the
/// weekday in a column of its own, to sort and group by.
class DayDates : public CalendarsAddition {
 public:
  static constexpr const char* kWeekdayColumn = "Weekday";

  [[nodiscard]] static platform::WindowParts Parts() { return {}; }

  DayDates(const PlanningContext& context, platform::CalendarsScene& scene);

  void AddColumns() override;

 private:
  /// The date of a record on show; nothing where it has none.
  [[nodiscard]] std::optional<platform::Date> DateOf(platform::RecordSet::Bookmark record) const;
  [[nodiscard]] bool IsColumn(std::int16_t index, const char* key) const;

  const platform::Platform& platform_;
  platform::Grid& grid_;
  std::vector<platform::Subscription> subscriptions_;
};

}  // namespace ferrowind
