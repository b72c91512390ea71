#pragma once

#include <cstdint>

#include "ferrowind/platform/values/record_set.h"

namespace ferrowind {

/// How many rows of `after` differ in some cell from the row at the same place of `before`; a row that one of
/// them has beyond the other differs, too. Every row differs when the fields are not the same in number.
[[nodiscard]] std::int32_t ChangedDays(const platform::RecordSet& before, const platform::RecordSet& after);

}  // namespace ferrowind
