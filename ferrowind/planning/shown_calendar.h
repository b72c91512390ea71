#pragma once

#include <cstdint>
#include <optional>

#include "ferrowind/planning/history_store.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::planning {

/// What has become of a calendar since its days were read.
struct CalendarNews {
  enum class Kind { kNone, kChanged, kRemoved };

  Kind kind = Kind::kNone;
  /// The newest call that can have made the difference; nothing when the history has none.
  std::optional<HistoryEntry> call = {};
};

/// Compares the calendar with `days`, what CldGetMain gave of it some time ago. A call that left the days and
/// their rules as they are on show is no news. Fails as database_call.h says.
[[nodiscard]] CalendarNews NewsSince(const platform::RecordSet& days, std::int32_t currency,
                                     std::int32_t year);

}  // namespace ferrowind::planning
