#include "ferrowind/almanac/day_counts.h"

#include <bitset>
#include <cstddef>

#include "ferrowind/platform/values/date.h"

namespace ferrowind::almanac {
namespace {

std::size_t MonthOf(int year, int day_of_year) {
  return static_cast<std::size_t>(platform::Date(year, 1, 1).AddDays(day_of_year - 1).Month()) - 1;
}

/// The days of each month of the year, by number.
template <typename Receiver>
void ForEachDay(int year, const Receiver& receive) {
  for (int day = 1; day <= platform::DaysInYear(year); ++day) receive(day, MonthOf(year, day));
}

int& CountOf(DayCounts& counts, const MarkedDay& day) {
  if (!day.IsClosed()) return counts.exceptions;
  return day.kind == RuleKind::kWeekday ? counts.weekend : counts.holidays;
}

}  // namespace

MonthCounts CountDays(const CalendarContent& content) {
  MonthCounts months;
  ForEachDay(content.year, [&](int, std::size_t month) { ++months[month].working; });
  for (const MarkedDay& day : content.days) {
    DayCounts& counts = months[MonthOf(content.year, day.day_of_year)];
    --counts.working;
    ++CountOf(counts, day);
  }
  return months;
}

DayCounts Total(const MonthCounts& months) {
  DayCounts total;
  for (const DayCounts& month : months) {
    total.working += month.working;
    total.weekend += month.weekend;
    total.holidays += month.holidays;
    total.exceptions += month.exceptions;
  }
  return total;
}

std::array<int, 12> CountCommonOpenDays(std::span<const CalendarContent* const> contents) {
  std::array<int, 12> months{};
  if (contents.empty()) return months;
  std::bitset<367> is_closed;
  for (const CalendarContent* content : contents) {
    for (const MarkedDay& day : content->days) {
      if (day.IsClosed()) is_closed.set(static_cast<std::size_t>(day.day_of_year));
    }
  }
  ForEachDay(contents.front()->year, [&](int day, std::size_t month) {
    if (!is_closed.test(static_cast<std::size_t>(day))) ++months[month];
  });
  return months;
}

}  // namespace ferrowind::almanac
