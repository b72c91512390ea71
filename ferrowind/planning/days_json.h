#pragma once

#include <string>

#include "ferrowind/almanac/comparison.h"

namespace ferrowind::planning {

/// The days that `comparison` would change, and nothing else, as `CldApplyPlan` takes them: a list of rules,
/// each with its dates.
[[nodiscard]] std::string DaysJson(const almanac::Comparison& comparison,
                                   almanac::ExceptionHandling exceptions);

}  // namespace ferrowind::planning
