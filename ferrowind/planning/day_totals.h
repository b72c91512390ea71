#pragma once

#include <cstddef>

namespace ferrowind::planning {

/// How many days of calendars become others, and how many stay although the plan has them otherwise.
struct DayTotals {
  /// Those that become others.
  std::size_t taken = 0;
  /// Of `taken`: weekend days that are ordinary working days now.
  std::size_t new_weekends = 0;
  /// Of `taken`: working days by exception that have a reason.
  std::size_t lost_reasons = 0;
  std::size_t kept_exceptions = 0;
  /// Those that stay closed although the rule book does not have them.
  std::size_t kept_outside_book = 0;
  /// Others that somebody has left out.
  std::size_t left_out = 0;
  /// Those that the database would refuse.
  std::size_t blocked = 0;

  DayTotals& operator+=(const DayTotals& other) {
    taken += other.taken;
    new_weekends += other.new_weekends;
    lost_reasons += other.lost_reasons;
    kept_exceptions += other.kept_exceptions;
    kept_outside_book += other.kept_outside_book;
    left_out += other.left_out;
    blocked += other.blocked;
    return *this;
  }
};

}  // namespace ferrowind::planning
