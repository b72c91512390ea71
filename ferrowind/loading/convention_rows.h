#pragma once

#include "ferrowind/business_days/market_conventions.h"
#include "ferrowind/export.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::loading {

/// What comes with the program: database/seed/market_conventions.txt.
[[nodiscard]] FERROWIND_EXPORT const business_days::MarketConventions& DeliveredConventions();

/// What the record set of `CldGetConventions` says. Rows that are none of a convention are the failure
/// InvalidArgument; values of other types are the failure of their conversion.
[[nodiscard]] FERROWIND_EXPORT business_days::MarketConventions ConventionsIn(platform::RecordSet& rows);

}  // namespace ferrowind::loading
