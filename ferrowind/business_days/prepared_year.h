#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "ferrowind/export.h"

namespace ferrowind::business_days {

/// A year of a calendar as it is loaded.
struct FERROWIND_EXPORT PreparedYear {
  /// 1900 to 3000.
  std::chrono::year year{};
  /// A character a day, 365 or 366 of them from 1 January on: '1' closed, '0' open.
  std::string days;

  /// The same year with the same days.
  friend bool operator==(const PreparedYear&, const PreparedYear&) = default;
};

/// The number as the year of a calendar. One outside 1900 to 3000 is the failure InvalidArgument; to make a
/// std::chrono::year of any number keeps its lower 16 bits, so that 67562 would be 2026.
[[nodiscard]] FERROWIND_EXPORT std::chrono::year CalendarYear(std::int32_t number);

}  // namespace ferrowind::business_days
