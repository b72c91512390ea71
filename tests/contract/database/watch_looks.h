#pragma once

#include <algorithm>
#include <chrono>
#include <thread>

#include "ferrowind/platform/database/change_watch.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::contract {

/// Whether a look tells of a change within `time`. Looks as often as the watch wants, and at least every 20
/// ms for the test's sake; failures count as looks that saw nothing.
inline bool SeesAChange(platform::ChangeWatch& watch,
                        std::chrono::milliseconds time = std::chrono::seconds(20)) {
  const auto end = std::chrono::steady_clock::now() + time;
  do {
    try {
      if (watch.Look()) return true;
    } catch (const platform::Failure&) {
      // Out of reach for the moment.
    }
    std::this_thread::sleep_for(std::min(watch.Pause(), std::chrono::milliseconds(20)));
  } while (std::chrono::steady_clock::now() < end);
  return false;
}

/// Long enough for a change that was made before to arrive.
inline constexpr std::chrono::milliseconds kAMoment{300};

}  // namespace ferrowind::contract
