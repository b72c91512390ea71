#include "ferrowind/planning/plan_words.h"

#include <algorithm>

#include "ferrowind/planning/in_one_list.h"
#include "ferrowind/planning/in_words.h"

namespace ferrowind::planning {

using almanac::ComparedDay;
using platform::Phrase;

bool IsNewWeekend(const almanac::YearPlan& plan, const ComparedDay& day) {
  return day.now == nullptr && plan.KindOf(*day.should) == almanac::RuleKind::kWeekday;
}

std::string WhyOf(const ComparedDay& day, const almanac::ComparisonLine& line) {
  const bool has_reason = day.action == almanac::PlanAction::kException && !day.now->comment.empty();
  if (!has_reason) return InWords(line.why);
  return InWords(Phrase::Of("%1; now open by exception: %2", {line.why, day.now->comment}));
}

std::vector<std::string> Incomplete(const YearPreparation& preparation) {
  std::vector<std::string> sentences;
  for (const Phrase& sentence : preparation.Plan().Incomplete()) {
    sentences.push_back(
        InWords(Phrase::Of("%1 cannot be planned in full. %2.",
                           {CalendarName(preparation.Owner(), preparation.Year()), sentence})));
  }
  return sentences;
}

DayTotals KeptByHand(const almanac::Comparison& comparison, const almanac::DayChoice& choice) {
  DayTotals kept;
  for (const ComparedDay& day : comparison.Days()) {
    if (!day.is_made_by_hand || day.Changes(choice)) continue;
    ++(day.IsOutsideBook() ? kept.kept_outside_book : kept.kept_exceptions);
  }
  return kept;
}

std::string CountedExceptions(std::size_t count) {
  return InWords(count, "%n working day by exception", "%n working days by exception");
}

std::string BecomesOfBook(std::size_t days, bool is_taken) {
  return is_taken ? InWords(days, "gets it as a date of its own", "gets them as dates of their own")
                  : InWords(days, "stays as it is: a difference on the board",
                            "stays as it is: differences on the board");
}

std::string StayingDays(const DayTotals& totals) {
  std::vector<std::string> parts;
  if (totals.kept_exceptions != 0) parts.push_back(CountedExceptions(totals.kept_exceptions));
  if (totals.kept_outside_book != 0) {
    parts.push_back(InWords(totals.kept_outside_book, "%n closed day that the rule book does not have",
                            "%n closed days that the rule book does not have"));
  }
  if (totals.left_out != 0) {
    parts.push_back(InWords(totals.left_out, "%n day that is left out", "%n days that are left out"));
  }
  if (totals.blocked != 0) {
    parts.push_back(InWords(totals.blocked, "%n day whose rule stands in the way",
                            "%n days whose rules stand in the way"));
  }
  return InOneList(parts);
}

std::string ButFor(const DayTotals& totals) {
  const std::string staying = StayingDays(totals);
  return staying.empty() ? staying : InWords(" but for %1", {staying});
}

std::string CountedChanges(const DayTotals& totals) {
  std::string changes = InWords(totals.taken, "%n day", "%n days");
  if (totals.new_weekends != 0) {
    changes = InWords("%1, %2 of them weekends", {changes, std::to_string(totals.new_weekends)});
  }
  const std::string staying = StayingDays(totals);
  return staying.empty() ? changes : InWords("%1; unchanged: %2", {changes, staying});
}

}  // namespace ferrowind::planning
