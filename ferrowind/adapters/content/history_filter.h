#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace ferrowind::content {

/// Which entries of a history are asked for; all of them when nothing is set.
struct HistoryFilter {
  struct Calendar {
    /// The currency's code, in the dictionary's spelling.
    std::string currency;
    std::int32_t year = 0;
  };

  /// The first moment, UTC, as YYYY-MM-DDTHH:MM:SS.sssZ.
  std::optional<std::string> since;
  /// Calls for this calendar alone.
  std::optional<Calendar> calendar;
};

}  // namespace ferrowind::content
