#include "naive_days.h"

#include <algorithm>
#include <cstddef>

namespace ferrowind::business_days {
namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr int kYear = 366;

/// What a day must share with another so that a convention may move one to the other.
int PartOf(sys_days day, Convention convention) {
  const year_month_day date(day);
  const int month =
      static_cast<int>(date.year()) * 12 + static_cast<int>(static_cast<unsigned>(date.month()));
  if (convention != Convention::kModifiedFollowingBimonthly) return month;
  return month * 2 + (static_cast<unsigned>(date.day()) > 15 ? 1 : 0);
}

}  // namespace

NaiveDays::NaiveDays(const std::vector<PreparedYear>& years) {
  for (const PreparedYear& prepared : years) {
    const auto first = static_cast<std::size_t>(sys_days(prepared.year / 1 / 1).time_since_epoch().count());
    days_.resize(std::max(days_.size(), first + prepared.days.size()), ' ');
    days_.replace(first, prepared.days.size(), prepared.days);
  }
}

NaiveDays::NaiveDays(const NaiveDays& left, const NaiveDays& right) {
  for (std::size_t day = 0; day < std::min(left.days_.size(), right.days_.size()); ++day) {
    const char one = left.days_[day];
    const char other = right.days_[day];
    const bool is_known = one != ' ' && other != ' ';
    days_ += !is_known ? ' ' : one == '1' || other == '1' ? '1' : '0';
  }
}

bool NaiveDays::IsOpen(Day day) const {
  const auto place = static_cast<std::size_t>(day.time_since_epoch().count());
  if (place >= days_.size() || days_[place] == ' ') throw Unknown{year_month_day(day).year()};
  return days_[place] == '0';
}

sys_days NaiveDays::Next(Day day) const {
  for (int step = 0; step < kYear; ++step) {
    day += days(1);
    if (IsOpen(day)) return day;
  }
  throw NoneFound{};
}

sys_days NaiveDays::Previous(Day day) const {
  for (int step = 0; step < kYear; ++step) {
    day -= days(1);
    if (IsOpen(day)) return day;
  }
  throw NoneFound{};
}

sys_days NaiveDays::Adjust(Day day, Convention convention) const {
  if (convention == Convention::kUnadjusted || IsOpen(day)) return day;
  const int part = PartOf(day, convention);
  const auto first_in_part = [&](days step) -> Day {
    for (Day at = day; PartOf(at, convention) == part; at += step) {
      if (IsOpen(at)) return at;
    }
    for (Day at = day; PartOf(at, convention) == part; at -= step) {
      if (IsOpen(at)) return at;
    }
    throw NoneFound{};
  };
  switch (convention) {
    case Convention::kModifiedFollowing:
    case Convention::kModifiedFollowingBimonthly:
      return first_in_part(days(1));
    case Convention::kModifiedPreceding:
      return first_in_part(days(-1));
    case Convention::kPreceding:
      return Previous(day);
    case Convention::kNearest: {
      const unsigned weekday = std::chrono::weekday(day).c_encoding();
      return weekday <= 1 ? Next(day) : Previous(day);
    }
    default:
      return Next(day);
  }
}

sys_days NaiveDays::Add(Day day, std::int32_t count) const {
  for (; count > 0; --count) day = Next(day);
  for (; count < 0; ++count) day = Previous(day);
  return day;
}

std::int32_t NaiveDays::Between(Day from, Day to) const {
  std::int32_t count = 0;
  for (; from < to; count += IsOpen(from) ? 1 : 0) from += days(1);
  for (; from > to; count -= IsOpen(from) ? 1 : 0) from -= days(1);
  return count;
}

sys_days NaiveDays::LastOfMonth(Day day) const {
  const year_month_day date(day);
  for (Day at = date.year() / date.month() / std::chrono::last; year_month_day(at).month() == date.month();
       at -= days(1)) {
    if (IsOpen(at)) return at;
  }
  throw NoneFound{};
}

}  // namespace ferrowind::business_days
