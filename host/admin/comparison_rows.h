#pragma once

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/almanac/comparison.h"
#include "ferrowind/platform/values/record_set.h"

#include "host/admin/outcome_writer.h"

namespace ferrowind::host {

/// Rows `date` (a date), `weekday`, `now`, `should` (empty for an ordinary working day), `action`, `why` of
/// those days of the comparison that `is_shown` tells. `why` has the reason of an exception, too.
[[nodiscard]] std::shared_ptr<platform::RecordSet> ComparisonRows(
    const almanac::Comparison& comparison, OutputFormat format,
    const std::function<bool(const almanac::ComparedDay& day)>& is_shown);

/// The rows of several calendars, in front of each a field `currency` with the code that stands with them.
/// Precondition: there is one.
[[nodiscard]] std::shared_ptr<platform::RecordSet> JoinedRows(
    const std::vector<std::pair<std::string, std::shared_ptr<platform::RecordSet>>>& calendars);

/// For people: the rows and the number of weekend days that are left out of them; nothing of what is none.
void WriteWithWeekends(const platform::RecordSet& rows, std::size_t weekends, std::ostream& out);

}  // namespace ferrowind::host
