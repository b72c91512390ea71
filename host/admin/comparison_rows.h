#pragma once

#include <functional>
#include <memory>

#include "ferrowind/almanac/comparison.h"
#include "ferrowind/platform/values/record_set.h"

#include "host/admin/outcome_writer.h"

namespace ferrowind::host {

/// Rows `date` (a date), `weekday`, `now`, `should` (empty for an ordinary working day), `action`, `why` of
/// those days of the comparison that `is_shown` tells.
[[nodiscard]] std::shared_ptr<platform::RecordSet> ComparisonRows(
    const almanac::Comparison& comparison, OutputFormat format,
    const std::function<bool(const almanac::ComparedDay& day)>& is_shown);

}  // namespace ferrowind::host
