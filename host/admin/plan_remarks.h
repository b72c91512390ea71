#pragma once

#include <iosfwd>

#include "ferrowind/almanac/comparison.h"
#include "ferrowind/planning/year_preparation.h"

namespace ferrowind::host {

/// Which dates the plan lacks, a line each.
void WriteIncomplete(const planning::YearPreparation& preparation, std::ostream& out);

/// What people must know beside the days of a plan, a line each: which
/// dates the plan lacks, and what the database would refuse when the plan is applied.
void WriteRemarks(const planning::YearPreparation& preparation, almanac::ExceptionHandling exceptions,
                  std::ostream& out);

}  // namespace ferrowind::host
