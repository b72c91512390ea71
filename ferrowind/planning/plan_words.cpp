#include "ferrowind/planning/plan_words.h"

#include <algorithm>

#include "ferrowind/planning/counted.h"

namespace ferrowind::planning {

using almanac::ComparedDay;

bool IsNewWeekend(const almanac::YearPlan& plan, const ComparedDay& day) {
  return day.now == nullptr && plan.KindOf(*day.should) == almanac::RuleKind::kWeekday;
}

std::string WhyOf(const ComparedDay& day, const almanac::ComparisonLine& line) {
  const bool has_reason = day.action == almanac::PlanAction::kException && !day.now->comment.empty();
  return has_reason ? line.why + "; now open by exception: " + day.now->comment : line.why;
}

std::vector<std::string> Incomplete(const YearPreparation& preparation) {
  std::vector<std::string> sentences = preparation.Plan().Incomplete();
  for (std::string& sentence : sentences) {
    sentence = preparation.Name() + " cannot be planned in full. " + sentence + ".";
  }
  return sentences;
}

std::size_t KeptExceptions(const almanac::Comparison& comparison, const almanac::DayChoice& choice) {
  const auto& days = comparison.Days();
  return static_cast<std::size_t>(std::count_if(days.begin(), days.end(), [&](const ComparedDay& day) {
    return day.action == almanac::PlanAction::kException && !day.Changes(choice);
  }));
}

std::string CountedExceptions(std::size_t count) {
  return Counted(count, "working day by exception", "working days by exception");
}

std::string ButForExceptions(std::size_t kept) {
  DayTotals totals;
  totals.kept_exceptions = kept;
  return ButFor(totals);
}

std::string StayingDays(const DayTotals& totals) {
  std::vector<std::string> parts;
  if (totals.kept_exceptions != 0) parts.push_back(CountedExceptions(totals.kept_exceptions));
  if (totals.left_out != 0) {
    parts.push_back(Counted(totals.left_out, "day that is left out", "days that are left out"));
  }
  if (totals.blocked != 0) {
    parts.push_back(
        Counted(totals.blocked, "day whose rule stands in the way", "days whose rules stand in the way"));
  }
  std::string joined;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i != 0) joined += i + 1 == parts.size() ? " and " : ", ";
    joined += parts[i];
  }
  return joined;
}

std::string ButFor(const DayTotals& totals) {
  const std::string staying = StayingDays(totals);
  return staying.empty() ? staying : " but for " + staying;
}

std::string CountedChanges(const DayTotals& totals) {
  std::string changes = Counted(totals.taken, "day", "days");
  if (totals.new_weekends != 0) changes += ", " + std::to_string(totals.new_weekends) + " of them weekends";
  const std::string staying = StayingDays(totals);
  return staying.empty() ? changes : changes + ", but not " + staying;
}

}  // namespace ferrowind::planning
