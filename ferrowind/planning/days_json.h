#pragma once

#include <string>

#include "ferrowind/almanac/comparison.h"

namespace ferrowind::planning {

/// The days of `comparison` that `choice` takes, and nothing else, as `CldApplyPlan` takes them: a list of
/// rules, each with its dates.
[[nodiscard]] std::string DaysJson(const almanac::Comparison& comparison, const almanac::DayChoice& choice);

}  // namespace ferrowind::planning
