#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "ferrowind/platform/services/action_observer.h"

namespace ferrowind::host {

/// What became of one action of the operator.
struct ActionRecord {
  platform::OperatorAction action;
  std::vector<platform::ActionStep> writes;
  std::vector<platform::ActionStep> reads;
  /// How many days of the calendar on show it changed; nothing when they were not read again.
  std::optional<std::int32_t> changed_days;
  /// The descriptions of the failures that the component has shown to the operator itself.
  std::set<std::string> shown_failures;
};

[[nodiscard]] inline bool IsDone(const platform::ActionStep& step) { return step.return_value == 0; }

}  // namespace ferrowind::host
