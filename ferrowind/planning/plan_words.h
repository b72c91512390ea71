#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "ferrowind/almanac/comparison.h"
#include "ferrowind/planning/day_totals.h"
#include "ferrowind/planning/year_preparation.h"

/// What is said of plans to people, by windows and commands alike.
namespace ferrowind::planning {

/// What the day of an empty name is called.
//: said
inline constexpr const char* kOrdinaryDay = "working day";

/// A weekend day of a new calendar, which everybody knows.
[[nodiscard]] bool IsNewWeekend(const almanac::YearPlan& plan, const almanac::ComparedDay& day);

/// Why the day should be so, and the reason for which it is an exception now; without a full stop.
[[nodiscard]] std::string WhyOf(const almanac::ComparedDay& day, const almanac::ComparisonLine& line);

/// Which dates the plan lacks, a sentence with a full stop each.
[[nodiscard]] std::vector<std::string> Incomplete(const YearPreparation& preparation);

/// The days made by hand that `choice` leaves as they are: exceptions, and those outside the rule book.
[[nodiscard]] DayTotals KeptByHand(const almanac::Comparison& comparison, const almanac::DayChoice& choice);

/// "1 working day by exception".
[[nodiscard]] std::string CountedExceptions(std::size_t count);

/// What becomes of a rule book when days are closed that it leaves open: "gets them as dates of their own".
[[nodiscard]] std::string BecomesOfBook(std::size_t days, bool is_taken);

/// The days that stay otherwise than planned: "2 working days by exception and 1 day that is left out", or
/// nothing.
[[nodiscard]] std::string StayingDays(const DayTotals& totals);
/// The same behind "as planned": " but for 1 day that is left out", or nothing.
[[nodiscard]] std::string ButFor(const DayTotals& totals);
/// "112 days, 104 of them weekends, but not 1 day that is left out".
[[nodiscard]] std::string CountedChanges(const DayTotals& totals);

}  // namespace ferrowind::planning
