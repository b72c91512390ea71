#include "ferrowind/planning/planned_calendar.h"

#include <algorithm>
#include <utility>

#include "ferrowind/planning/in_words.h"
#include "ferrowind/planning/plan_words.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::planning {

using almanac::ComparedDay;
using almanac::DayChoice;
using almanac::ExceptionHandling;
using almanac::PlanAction;

Preparer ByRuleBook() {
  return [](const YearPlanner& planner, const Currency& currency, int year) {
    return planner.Prepare(currency, year);
  };
}

void PlannedCalendar::Plan(const std::shared_ptr<const YearPlanner>& planner) {
  const bool was_left_out = preparation_ != nullptr ? IsLeftOut() : was_left_out_;
  try {
    const Currency* const currency = planner->Currencies().Find(key_.first);
    if (currency == nullptr) {
      throw platform::Failure(platform::failure_number::kInvalidArgument,
                              InWords("There is no currency %1", {std::to_string(key_.first)}));
    }
    name_ = CalendarName(*currency, key_.second);
    preparation_ = prepare_(*planner, *currency, key_.second);
    book_plan_ = source_ == PlanSource::kList ? planner->PlanIfKnown(*currency, key_.second) : std::nullopt;
    planner_ = planner;
    why_not_.clear();
  } catch (const platform::Failure& failure) {
    Fail(failure.Description());
    return;
  }
  ChooseAnew();
  if (was_left_out) TakeAll(false);
}

void PlannedCalendar::Fail(const std::string& why_not) {
  if (preparation_ != nullptr) was_left_out_ = IsLeftOut();
  preparation_.reset();
  why_not_ = why_not;
}

bool PlannedCalendar::IsOpenToChoice(const ComparedDay& day) const {
  return day.action != PlanAction::kKeep && !preparation_->Compared().ObstacleOf(day);
}

PlannedCalendar::Decision PlannedCalendar::DecisionOf(const ComparedDay& day, bool is_taken) const {
  auto line = preparation_->Compared().LineOf(day);
  return {is_taken, day.action, std::move(line.now), std::move(line.should),
          day.now != nullptr ? day.now->comment : std::string()};
}

void PlannedCalendar::ChooseAnew() {
  choice_ = ExceptionHandling::kKeep;
  for (const ComparedDay& day : preparation_->Compared().Days()) {
    if (day.action == PlanAction::kKeep) continue;
    const auto decided = decisions_.find(day.day_of_year);
    if (!IsOpenToChoice(day)) {
      choice_.Decide(day.day_of_year, false);
    } else if (decided != decisions_.end()) {
      const bool still_holds = !decided->second.is_taken || decided->second == DecisionOf(day, true);
      if (still_holds) choice_.Decide(day.day_of_year, decided->second.is_taken);
    }
  }
}

void PlannedCalendar::Take(int day_of_year, bool is_taken) {
  const ComparedDay day = preparation_->Compared().DayAt(day_of_year);
  if (!IsOpenToChoice(day)) return;
  // What was applied has left those that differ; from here on the operator does.
  if (!is_taken) is_rest_ = false;
  decisions_.insert_or_assign(day_of_year, DecisionOf(day, is_taken));
  choice_.Decide(day_of_year, is_taken);
}

void PlannedCalendar::Apply() {
  preparation_->Apply(choice_);
  is_rest_ = true;
}

void PlannedCalendar::TakeAll(bool is_taken) {
  is_rest_ = false;
  decisions_.clear();
  ChooseAnew();
  if (is_taken) return;
  for (const ComparedDay& day : preparation_->Compared().Days()) Take(day.day_of_year, false);
}

bool PlannedCalendar::IsLeftOut() const {
  if (preparation_ == nullptr || is_rest_) return false;
  const auto& days = preparation_->Compared().Days();
  const auto is_taken_at_first = [&](const ComparedDay& day) {
    return !day.is_made_by_hand && IsOpenToChoice(day);
  };
  return std::any_of(days.begin(), days.end(), is_taken_at_first) &&
         std::none_of(days.begin(), days.end(), [&](const auto& day) { return Takes(day); });
}

std::vector<DatedHoliday> PlannedCalendar::DaysForBook() const {
  std::vector<DatedHoliday> holidays;
  if (preparation_ == nullptr || !book_plan_) return holidays;
  const almanac::YearPlan& listed = preparation_->Plan();
  for (const ComparedDay& day : preparation_->Compared().Days()) {
    if (!Takes(day) || day.should == nullptr || book_plan_->Find(day.day_of_year) != nullptr) continue;
    const almanac::RuleKind kind = listed.KindOf(*day.should);
    const bool is_holiday = kind == almanac::RuleKind::kCelebration || kind == almanac::RuleKind::kPoint;
    if (is_holiday) holidays.push_back({listed.DateOf(*day.should), listed.NameOf(*day.should), kind});
  }
  return holidays;
}

DayTotals PlannedCalendar::Totals() const {
  DayTotals totals;
  if (preparation_ == nullptr) return totals;
  for (const ComparedDay& day : preparation_->Compared().Days()) {
    if (day.action == PlanAction::kKeep) continue;
    if (Takes(day)) {
      ++totals.taken;
      if (IsNewWeekend(preparation_->Plan(), day)) ++totals.new_weekends;
      if (day.action == PlanAction::kException && !day.now->comment.empty()) ++totals.lost_reasons;
    } else if (!IsOpenToChoice(day)) {
      ++totals.blocked;
    } else if (day.action == PlanAction::kException) {
      ++totals.kept_exceptions;
    } else if (day.is_made_by_hand) {
      ++totals.kept_outside_book;
    } else {
      ++totals.left_out;
    }
  }
  return totals;
}

bool PlannedCalendar::HasWork() const {
  if (preparation_ == nullptr) return false;
  const auto& days = preparation_->Compared().Days();
  return std::any_of(days.begin(), days.end(), [&](const auto& day) { return Takes(day); });
}

}  // namespace ferrowind::planning
