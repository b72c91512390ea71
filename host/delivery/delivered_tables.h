#pragma once

#include "ferrowind/almanac/date_table.h"

namespace ferrowind::host {

/// The date tables that this program carries, which the rules of books name.
[[nodiscard]] const almanac::DateTables& DeliveredDateTables();

}  // namespace ferrowind::host
