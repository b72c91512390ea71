#pragma once

#include <vector>

#include "ferrowind/almanac/date_expression.h"
#include "ferrowind/almanac/date_table.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::almanac {

/// The base dates of an expression within a year, ascending, before any move. None for `between`, which only
/// a plan knows, and none for a table that is missing or does not reach the year.
[[nodiscard]] std::vector<platform::Date> BaseDates(const DateExpression& expression, int year,
                                                    const DateTables& tables);

/// Whether there is a base date in any of the years that plans know; false for `between`.
[[nodiscard]] bool HasBaseDates(const DateExpression& expression, const DateTables& tables);

}  // namespace ferrowind::almanac
