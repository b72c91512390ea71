#pragma once

#include <optional>
#include <string>

#include "ferrowind/platform/values/date.h"

namespace ferrowind::planning {

/// A moment of the history, which is UTC, by this computer's clock: "2026-11-22 10:05:31". What is no such
/// moment stays as it is.
[[nodiscard]] std::string LocalMoment(const std::string& moment);

/// A second of a day as this computer's clock shows it.
struct LocalTime {
  platform::Date day;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

/// The last moment of that second as the history writes moments: "2026-11-22T09:05:31.999Z". The later one
/// where the clock is set back and shows the second twice; nothing where it is set forward and never does.
[[nodiscard]] std::optional<std::string> MomentOf(const LocalTime& time);

}  // namespace ferrowind::planning
