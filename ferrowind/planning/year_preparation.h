#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/almanac/comparison.h"
#include "ferrowind/almanac/plan_source.h"
#include "ferrowind/almanac/planner.h"
#include "ferrowind/almanac/rule_directory.h"
#include "ferrowind/almanac/rule_matches.h"
#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/currency_list.h"

namespace ferrowind::planning {

/// The calendar of a currency and a year beside its plan, as both were when this was made. Lives where it was
/// made.
class YearPreparation {
 public:
  /// Plans the year (fails as `Planner::Plan` does) and reads the calendar of the calling thread's database
  /// (fails as database_call.h says). `rules` are the database's and must outlive this; `is_of_others` as
  /// `almanac::Comparison` has it.
  YearPreparation(const Currency& currency, int year, const almanac::Planner& planner,
                  const almanac::RuleDirectory& rules,
                  const almanac::Comparison::RuleOfOthers& is_of_others = {});
  /// The same of a plan that was made elsewhere, by `source`, beside `calendar`, which is of its year.
  YearPreparation(const Currency& currency, almanac::YearPlan plan, StoredCalendar calendar,
                  const almanac::RuleDirectory& rules, almanac::PlanSource source,
                  const almanac::Comparison::RuleOfOthers& is_of_others = {});
  YearPreparation(const YearPreparation&) = delete;
  YearPreparation& operator=(const YearPreparation&) = delete;

  /// "EUR 2028".
  [[nodiscard]] std::string Name() const;
  [[nodiscard]] const Currency& Owner() const { return currency_; }
  [[nodiscard]] int Year() const { return plan_.Year(); }
  /// Otherwise it counts as empty.
  [[nodiscard]] bool CalendarExists() const { return calendar_.exists; }
  [[nodiscard]] const almanac::YearPlan& Plan() const { return plan_; }
  [[nodiscard]] const almanac::Comparison& Compared() const { return comparison_; }
  /// The rules of the database that have the names of the book's.
  [[nodiscard]] const almanac::RuleMatches& Matches() const { return matches_; }
  /// Whether `Apply` has anything to do.
  [[nodiscard]] bool Changes(const almanac::DayChoice& choice) const;

  /// Makes the calendar as planned, in one call: it is created when it is missing, gets the rules that are
  /// missing, and the days that `choice` takes become what they should be. All of it or nothing: a `Refusal`
  /// when the calendar is another by now, or when there are obstacles (`Comparison::Obstacles`).
  void Apply(const almanac::DayChoice& choice) const;

  /// The number of the history's newest entry of this calendar, which is that of `Apply` unless somebody else
  /// has changed the calendar since; nothing when the newest one is no plan's.
  [[nodiscard]] std::optional<std::int32_t> NewestEntry() const;

 private:
  Currency currency_;
  almanac::YearPlan plan_;
  StoredCalendar calendar_;
  almanac::RuleMatches matches_;
  almanac::Comparison comparison_;
};

}  // namespace ferrowind::planning
