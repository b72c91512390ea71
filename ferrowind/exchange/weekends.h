#pragma once

#include <array>
#include <cstddef>

#include "ferrowind/almanac/calendar_content.h"
#include "ferrowind/almanac/year_plan.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::exchange {

/// The weekdays that are closed every week: those of which a year has weekday rules on at least `kEnough`
/// days.
class Weekends {
 public:
  explicit Weekends(const almanac::CalendarContent& calendar);
  explicit Weekends(const almanac::YearPlan& plan);

  /// 1 Sunday to 7 Saturday.
  [[nodiscard]] bool Include(int weekday) const;

  static constexpr std::size_t kEnough = 26;

 private:
  void Count(const platform::Date& date);

  /// By weekday.
  std::array<std::size_t, 8> days_{};
};

}  // namespace ferrowind::exchange
