#include "ferrowind/almanac/year_plan.h"

#include <algorithm>

#include "ferrowind/almanac/plan_reasons.h"

namespace ferrowind::almanac {
namespace {

std::string WhyUnknown(const UnknownDates& unknown) {
  if (unknown.table.empty()) return "the book has no day of that year yet";
  if (unknown.last_year == 0) return "there is no table " + unknown.table;
  return "the table " + unknown.table + " reaches from " + std::to_string(unknown.first_year) + " to " +
         std::to_string(unknown.last_year);
}

}  // namespace

const PlannedDay* YearPlan::Find(int day_of_year) const {
  const auto place =
      std::lower_bound(days_.begin(), days_.end(), day_of_year,
                       [](const PlannedDay& day, int wanted) { return day.day_of_year < wanted; });
  return place != days_.end() && place->day_of_year == day_of_year ? &*place : nullptr;
}

std::string YearPlan::NameOf(const PlannedDay& day) const {
  const BookRule& rule = book_->rules[day.rule];
  return day.standing == Standing::kSubstitute ? rule.NameOfMovedDay() : rule.name;
}

RuleKind YearPlan::KindOf(const PlannedDay& day) const {
  return day.standing == Standing::kSubstitute ? RuleKind::kPoint : book_->rules[day.rule].kind;
}

std::string YearPlan::CommentOf(const PlannedDay& day) const { return PlanReasons(*this).CommentOf(day); }

platform::Date YearPlan::DateOf(const PlannedDay& day) const {
  return platform::Date(year_, 1, 1).AddDays(day.day_of_year - 1);
}

std::string YearPlan::WhyOf(int day_of_year) const { return PlanReasons(*this).WhyOf(day_of_year); }

std::vector<std::string> YearPlan::Incomplete() const {
  std::vector<std::string> sentences;
  for (const UnknownDates& unknown : unknown_) {
    sentences.push_back("The date of " + book_->rules[unknown.rule].name + " in " + std::to_string(year_) +
                        " is not known: " + WhyUnknown(unknown));
  }
  return sentences;
}

}  // namespace ferrowind::almanac
