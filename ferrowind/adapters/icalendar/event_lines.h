#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace ferrowind::icalendar {

/// Where the components of a text begin and end, which libical does not tell.
struct EventLines {
  /// Of each line BEGIN:VEVENT, from 1 on.
  std::vector<std::size_t> events;
  /// How many parts of a calendar are no events: tasks, time zones and others.
  std::size_t others = 0;
  /// The line of the first component that does not end, or whose end does not fit; 0 when all is well.
  std::size_t broken = 0;
};

[[nodiscard]] EventLines EventLinesOf(std::string_view text);

}  // namespace ferrowind::icalendar
