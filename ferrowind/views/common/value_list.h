#pragma once

#include <cstdint>
#include <string>

#include "ferrowind/platform/services/action_observer.h"
#include "ferrowind/platform/toolkit/grid.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind {

/// Gives the column a value list of the pairs (`value_field`, `text_field`) of the records, from the current
/// row to the end, where the cursor then stands. A column that has a value list already keeps it as it is.
/// False without any row, and when something failed: the failure is reported, and the pairs added before it
/// stay. `observer`, where there is one, is told of that failure as of a failed read.
bool FillColumnValueList(platform::Grid& grid, const std::string& column_key, platform::RecordSet& records,
                         const std::string& text_field, const std::string& value_field,
                         platform::ActionObserver* observer = nullptr);

/// The text that the column shows for `value`; empty when it has no value list. A value that is not in the
/// list, or an unknown column, is the grid's failure.
[[nodiscard]] std::string ValueListText(platform::Grid& grid, const std::string& column_key,
                                        std::int32_t value);

}  // namespace ferrowind
