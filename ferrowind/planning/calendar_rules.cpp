#include "ferrowind/planning/calendar_rules.h"

#include <algorithm>
#include <utility>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::planning {
namespace {

using almanac::MarkedDay;
using platform::Date;

bool Holds(const std::map<std::int32_t, std::set<std::int32_t>>& owners, std::int32_t rule,
           std::int32_t currency) {
  const auto found = owners.find(rule);
  return found != owners.end() && found->second.contains(currency);
}

}  // namespace

CalendarRules::CalendarRules(std::int32_t currency_id, int year, const almanac::DateTables& tables)
    : planner_(tables), currency_(planner_.Currencies().FindOrNumber(currency_id)), year_(year) {
  content_.year = year;
  if (auto days = LoadDays(currency_, year)) content_ = *std::move(days);
  for (const MarkedDay& day : content_.days) {
    days_[day.rule].push_back(Date(year, 1, 1).AddDays(day.day_of_year - 1));
  }
  AddCalendars();
  try {
    plan_ = planner_.Plan(currency_, year);
  } catch (const platform::Failure&) {
    // No book tells of the year.
  }
}

void CalendarRules::AddCalendars() {
  const int first = std::max(year_ - kYearsBefore, kFirstCalendarYear);
  const int last = std::min(year_ + kYearsBehind, kLastCalendarYear);
  for (const auto& [key, content] : LoadMarkedDays(first, last)) {
    for (const MarkedDay& day : content.days) calendars_[day.rule].insert(key.first);
  }
}

const std::vector<Date>& CalendarRules::DaysOf(std::int32_t rule) const {
  static const std::vector<Date> kNone;
  const auto found = days_.find(rule);
  return found == days_.end() ? kNone : found->second;
}

std::vector<Date> CalendarRules::PlannedDaysOf(const std::string& name) const {
  std::vector<Date> days;
  if (!plan_) return days;
  for (const almanac::PlannedDay& day : plan_->Days()) {
    if (plan_->KindOf(day) != almanac::RuleKind::kWorkingDay && plan_->NameOf(day) == name) {
      days.push_back(plan_->DateOf(day));
    }
  }
  return days;
}

bool CalendarRules::IsOfInterest(std::int32_t rule) const {
  if (IsInBook(rule) || Holds(calendars_, rule, currency_.id)) return true;
  return !planner_.Owners().contains(rule) && !calendars_.contains(rule);
}

bool CalendarRules::IsInBook(std::int32_t rule) const { return Holds(planner_.Owners(), rule, currency_.id); }

std::vector<std::string> CalendarRules::OtherBooksOf(std::int32_t rule) const {
  std::vector<std::string> codes;
  const auto found = planner_.Owners().find(rule);
  if (found == planner_.Owners().end()) return codes;
  for (const std::int32_t owner : found->second) {
    if (owner == currency_.id) continue;
    codes.push_back(UnmistakableCode(planner_.Currencies().FindOrNumber(owner)));
  }
  std::sort(codes.begin(), codes.end());
  return codes;
}

}  // namespace ferrowind::planning
