#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include <libical/ical.h>

#include "ferrowind/exchange/year_list.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::icalendar {

/// What events may cost, so that a small file cannot keep a program busy.
struct Patience {
  std::size_t days = 200'000;
  /// libical may look long for a day that never comes.
  std::chrono::steady_clock::time_point end = std::chrono::steady_clock::now() + std::chrono::seconds(4);
};

/// Which days an event stands for.
struct EventDays {
  std::vector<platform::Date> days;
  /// Whether it is all-day.
  bool are_whole = true;
  /// Why it cannot be read, without a full stop; empty when it can.
  std::string fault;
};

/// `icalendar_list.h` says how; takes what it looks at from `patience`.
[[nodiscard]] EventDays DaysOf(icalcomponent* event, const std::optional<exchange::WantedYears>& wanted,
                               Patience& patience);

}  // namespace ferrowind::icalendar
