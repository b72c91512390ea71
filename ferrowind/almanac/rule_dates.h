#pragma once

#include <cstddef>
#include <vector>

#include "ferrowind/almanac/date_table.h"
#include "ferrowind/almanac/planner.h"
#include "ferrowind/platform/values/date.h"
#include "ferrowind/platform/values/phrase.h"

/// What a rule does in years, for who writes it.
namespace ferrowind::almanac {

/// A day that a rule comes to.
struct RuleDate {
  platform::Date date;
  /// Whether the plan gives the day to the rule. Otherwise its holiday moved away, is dropped, or another
  /// rule has the day; `why` tells which.
  bool has_day = true;
  /// What the plan says of the day (`YearPlan::WhyOf`).
  platform::Phrase why;
};

struct RuleYear {
  int year = 0;
  /// Ascending.
  std::vector<RuleDate> dates;
  /// Whether the rule's table reaches the year; dates that it does not reach are missing.
  bool is_known = true;
};

/// What the rule at that position of the planner's book does in `count` years from `first_year` on; years
/// that no plan knows are left out. `tables` are the planner's.
[[nodiscard]] std::vector<RuleYear> YearsOfRule(const Planner& planner, std::size_t rule,
                                                const DateTables& tables, int first_year, int count);

}  // namespace ferrowind::almanac
