#pragma once

#include <array>
#include <span>

#include "ferrowind/almanac/calendar_content.h"

namespace ferrowind::almanac {

/// How many days of a month or a year are what. Each day counts once.
struct DayCounts {
  /// Ordinary working days.
  int working = 0;
  /// Closed every week.
  int weekend = 0;
  /// Closed by a holiday, on whatever weekday.
  int holidays = 0;
  /// Working days by exception.
  int exceptions = 0;

  /// All days on which business is done.
  [[nodiscard]] int Open() const { return working + exceptions; }
  friend bool operator==(const DayCounts&, const DayCounts&) = default;
};

/// The counts of January to December.
using MonthCounts = std::array<DayCounts, 12>;

/// Precondition: the days of `content` are in its year.
[[nodiscard]] MonthCounts CountDays(const CalendarContent& content);
[[nodiscard]] DayCounts Total(const MonthCounts& months);

/// The days on which all calendars are open, by month. Precondition: they are of the same year.
[[nodiscard]] std::array<int, 12> CountCommonOpenDays(std::span<const CalendarContent* const> contents);

}  // namespace ferrowind::almanac
