#include "ferrowind/almanac/year_plan.h"

#include <algorithm>

#include "ferrowind/almanac/plan_reasons.h"

namespace ferrowind::almanac {

using platform::Phrase;

namespace {

Phrase WhyUnknown(const UnknownDates& unknown) {
  if (unknown.table.empty()) return Phrase::Of("the book has no day of that year yet");
  if (unknown.last_year == 0) return Phrase::Of("there is no table %1", {unknown.table});
  return Phrase::Of("the table %1 reaches from %2 to %3",
                    {unknown.table, std::to_string(unknown.first_year), std::to_string(unknown.last_year)});
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

Phrase YearPlan::WhyOf(int day_of_year) const { return PlanReasons(*this).WhyOf(day_of_year); }

Phrase YearPlan::AlsoOn(int day_of_year) const { return PlanReasons(*this).AlsoOn(day_of_year); }

std::vector<Phrase> YearPlan::Incomplete() const {
  std::vector<Phrase> sentences;
  for (const UnknownDates& unknown : unknown_) {
    sentences.push_back(
        Phrase::Of("The date of %1 in %2 is not known: %3",
                   {book_->rules[unknown.rule].name, std::to_string(year_), WhyUnknown(unknown)}));
  }
  return sentences;
}

}  // namespace ferrowind::almanac
