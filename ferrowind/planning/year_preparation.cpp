#include "ferrowind/planning/year_preparation.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "ferrowind/planning/database_call.h"
#include "ferrowind/planning/days_json.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::planning {
namespace {

constexpr const char* kApplyPlan = "CldApplyPlan";

}  // namespace

YearPreparation::YearPreparation(const Currency& currency, int year, const almanac::Planner& planner,
                                 const almanac::RuleDirectory& rules,
                                 const almanac::Comparison::RuleOfOthers& is_of_others)
    // In braces, whose order is kept: a year that has no plan is told of before the database is asked.
    : YearPreparation{currency,
                      planner.Plan(year),
                      LoadCalendar(currency, year),
                      rules,
                      almanac::PlanSource::kRuleBook,
                      is_of_others} {}

YearPreparation::YearPreparation(const Currency& currency, almanac::YearPlan plan, StoredCalendar calendar,
                                 const almanac::RuleDirectory& rules, almanac::PlanSource source,
                                 const almanac::Comparison::RuleOfOthers& is_of_others)
    : currency_(currency),
      plan_(std::move(plan)),
      calendar_(std::move(calendar)),
      matches_(plan_.Book(), rules),
      comparison_(plan_, calendar_.content, matches_, source, is_of_others) {}

std::string YearPreparation::Name() const { return currency_.code + " " + std::to_string(Year()); }

bool YearPreparation::Changes(const almanac::DayChoice& choice) const {
  const auto& days = comparison_.Days();
  return !calendar_.exists ||
         std::any_of(days.begin(), days.end(), [&](const auto& day) { return day.Changes(choice); });
}

std::optional<std::int32_t> YearPreparation::NewestEntry() const {
  SourceValues parameters;
  parameters.Add("ID1", currency_.id);
  parameters.Add("Year1", static_cast<std::int32_t>(Year()));
  parameters.Add("Count", 1);
  const CallAnswer answer =
      CallDatabase(InWords("Reading the history of %1", {Name()}), "CldGetHistory", parameters, 1);
  platform::RecordSet& rows = *answer.record_sets.front();
  rows.MoveFirst();
  if (rows.Eof() || platform::ToText(rows["ProcedureName"]) != kApplyPlan) return std::nullopt;
  return platform::ToInt32(rows["EntryID"]);
}

void YearPreparation::Apply(const almanac::DayChoice& choice) const {
  SourceValues parameters;
  parameters.Add("ID1", currency_.id);
  parameters.Add("Year1", static_cast<std::int32_t>(Year()));
  parameters.Add("Expected", calendar_.fingerprint);
  parameters.Add("Days", DaysJson(comparison_, choice));
  (void)CallDatabase(InWords("Applying the plan of %1", {Name()}), kApplyPlan, parameters);
}

}  // namespace ferrowind::planning
