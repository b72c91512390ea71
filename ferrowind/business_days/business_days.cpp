#include "ferrowind/business_days/business_days.h"

#include <algorithm>
#include <cstdlib>

#include "ferrowind/business_days/day_failures.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::business_days {
namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

/// Within so many days there must be a business day.
constexpr days kLongestSearch{366};

struct Span {
  sys_days first;
  sys_days last;
};

Span MonthOf(sys_days day) {
  const year_month_day date(day);
  const auto month = date.year() / date.month();
  return {month / 1, month / std::chrono::last};
}

/// The half of a month that `day` is in: the first 15 days or the others.
Span HalfMonthOf(sys_days day) {
  const Span month = MonthOf(day);
  const sys_days middle = month.first + days(14);
  return day <= middle ? Span{month.first, middle} : Span{middle + days(1), month.last};
}

std::string TextOf(sys_days day) {
  const year_month_day date(day);
  const int year = static_cast<int>(date.year());
  const auto month = static_cast<int>(static_cast<unsigned>(date.month()));
  const auto in_month = static_cast<int>(static_cast<unsigned>(date.day()));
  if (!platform::Date::IsValid(year, month, in_month))
    return "day " + std::to_string(day.time_since_epoch().count());
  return platform::Date(year, month, in_month).ToIso();
}

}  // namespace

void BusinessDays::FailNotPrepared(Day day) const {
  const auto is_unknown = [day](const auto& member) {
    return member->days.At(day) == DayState::kNotPrepared;
  };
  const auto& members = content_->members;
  const auto member = std::ranges::find_if(members, is_unknown);
  throw NotPrepared(member == members.end() ? content_->name : (*member)->name, year_month_day(day).year());
}

void BusinessDays::FailNoBusinessDay(const std::string& where) const {
  throw NoBusinessDay("no business day of " + Name() + ' ' + where);
}

std::optional<sys_days> BusinessDays::FirstBusinessDay(Day first, Day last) const {
  const auto found = table_->FirstNotClosed(first, last);
  if (found && table_->At(*found) == DayState::kNotPrepared) FailNotPrepared(*found);
  return found;
}

std::optional<sys_days> BusinessDays::LastBusinessDay(Day first, Day last) const {
  const auto found = table_->LastNotClosed(first, last);
  if (found && table_->At(*found) == DayState::kNotPrepared) FailNotPrepared(*found);
  return found;
}

sys_days BusinessDays::Next(Day day) const {
  const auto found = FirstBusinessDay(day + days(1), day + kLongestSearch);
  if (!found) FailNoBusinessDay("within a year after " + TextOf(day));
  return *found;
}

sys_days BusinessDays::Previous(Day day) const {
  const auto found = LastBusinessDay(day - kLongestSearch, day - days(1));
  if (!found) FailNoBusinessDay("within a year before " + TextOf(day));
  return *found;
}

sys_days BusinessDays::Moved(Day day, Convention convention) const {
  const auto forward_within = [&](const Span& span) {
    const auto later = FirstBusinessDay(day, span.last);
    const auto found = later ? later : LastBusinessDay(span.first, day);
    if (!found) FailNoBusinessDay("from " + TextOf(span.first) + " to " + TextOf(span.last));
    return *found;
  };
  switch (convention) {
    case Convention::kModifiedFollowing:
      return forward_within(MonthOf(day));
    case Convention::kModifiedFollowingBimonthly:
      return forward_within(HalfMonthOf(day));
    case Convention::kPreceding:
      return Previous(day);
    case Convention::kModifiedPreceding: {
      const Span month = MonthOf(day);
      const auto earlier = LastBusinessDay(month.first, day);
      const auto found = earlier ? earlier : FirstBusinessDay(day, month.last);
      if (!found) FailNoBusinessDay("from " + TextOf(month.first) + " to " + TextOf(month.last));
      return *found;
    }
    case Convention::kNearest: {
      const std::chrono::weekday weekday(day);
      return weekday == std::chrono::Sunday || weekday == std::chrono::Monday ? Next(day) : Previous(day);
    }
    case Convention::kFollowing:
    case Convention::kUnadjusted:
      break;
  }
  return Next(day);
}

sys_days BusinessDays::AddOneByOne(Day day, std::int32_t count) const {
  for (; count > 0; --count) day = Next(day);
  for (; count < 0; ++count) day = Previous(day);
  return day;
}

sys_days BusinessDays::Added(Day day, std::int32_t count) const {
  if (count == 0) return day;
  // A year without a business day on the way would not be noticed by counting.
  if (table_->LongestClosure() >= kLongestSearch.count()) return AddOneByOne(day, count);
  const auto found =
      count > 0 ? table_->OpenDayAfter(day, count) : table_->OpenDayBefore(day, -std::int64_t{count});
  if (!found) FailNotPrepared(count > 0 ? table_->FirstUnknownAfter(day) : table_->LastUnknownBefore(day));
  return *found;
}

std::int32_t BusinessDays::BusinessDaysBetween(Day from, Day to) const {
  if (from == to) return 0;
  const bool is_forward = from < to;
  const auto count = is_forward ? table_->OpenDays(from + days(1), to) : table_->OpenDays(to, from - days(1));
  if (!count) FailNotPrepared(is_forward ? table_->FirstUnknownAfter(from) : table_->LastUnknownBefore(from));
  return is_forward ? *count : -*count;
}

sys_days BusinessDays::LastBusinessDayOfMonth(Day day) const {
  const Span month = MonthOf(day);
  const auto found = LastBusinessDay(month.first, month.last);
  if (!found) FailNoBusinessDay("from " + TextOf(month.first) + " to " + TextOf(month.last));
  return *found;
}

bool BusinessDays::IsLastBusinessDayOfMonth(Day day) const { return LastBusinessDayOfMonth(day) == day; }

std::vector<sys_days> BusinessDays::ClosedDays(Day first, Day last) const {
  std::vector<Day> closed;
  for (Day day = first; day <= last; day += days(1)) {
    if (!IsBusinessDay(day)) closed.push_back(day);
  }
  return closed;
}

bool BusinessDays::IsPrepared(std::chrono::year year) const {
  return State(year / std::chrono::January / 1) != DayState::kNotPrepared;
}

}  // namespace ferrowind::business_days
