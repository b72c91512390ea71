#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>

#include "ferrowind/almanac/comparison.h"
#include "ferrowind/planning/year_preparation.h"

namespace ferrowind::host {

/// Which dates the plan lacks, a line each.
void WriteIncomplete(const planning::YearPreparation& preparation, std::ostream& out);

/// What people must know beside the days of a plan, a line each: which
/// dates the plan lacks, and what the database would refuse when the plan is applied.
void WriteRemarks(const planning::YearPreparation& preparation, almanac::ExceptionHandling exceptions,
                  std::ostream& out);

/// How many working days by exception `exceptions` leaves open where the plan has closed them.
[[nodiscard]] std::size_t KeptExceptions(const almanac::Comparison& comparison,
                                         almanac::ExceptionHandling exceptions);

/// "1 working day by exception".
[[nodiscard]] std::string CountedExceptions(std::size_t count);

/// What stands behind "as planned" when so many exceptions are kept: " but for 2 working days by exception",
/// or nothing.
[[nodiscard]] std::string ButForExceptions(std::size_t kept);

}  // namespace ferrowind::host
