#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

#include "ferrowind/almanac/calendar_content.h"

namespace ferrowind::almanac {

/// What the calendars of a currency were like, by which one of them can be called odd.
class ReviewHistory {
 public:
  /// Looks at each day of all calendars, each of another year.
  explicit ReviewHistory(const std::vector<CalendarContent>& calendars);

  /// The weekday, 1 Sunday to 7 Saturday, on which the rule stood in every other year than `year`; nothing
  /// when it stood on several, or in fewer than two other years.
  [[nodiscard]] std::optional<int> OnlyWeekdayOf(std::int32_t rule, int year) const;

  struct Range {
    int least = 0;
    int most = 0;
  };
  /// How many days of the calendar of `year` holidays close beside its weekends. Precondition: it is one of
  /// the calendars.
  [[nodiscard]] int HolidaysIn(int year) const { return holidays_.at(year); }
  /// The same of the other years; nothing when there are fewer than two.
  [[nodiscard]] std::optional<Range> HolidaysInOtherYears(int year) const;

 private:
  /// Weekdays as bits: `1 << weekday`.
  using Weekdays = std::uint8_t;

  std::map<std::int32_t, std::map<int, Weekdays>> weekdays_;
  std::map<int, int> holidays_;
};

}  // namespace ferrowind::almanac
