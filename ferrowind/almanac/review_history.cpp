#include "ferrowind/almanac/review_history.h"

#include <algorithm>
#include <bit>

#include "ferrowind/platform/values/date.h"

namespace ferrowind::almanac {
namespace {

/// As few as a new database has beside the year that is being prepared.
constexpr int kOtherYears = 2;

bool IsHoliday(const MarkedDay& day) {
  return day.kind == RuleKind::kCelebration || day.kind == RuleKind::kPoint;
}

}  // namespace

ReviewHistory::ReviewHistory(const std::vector<CalendarContent>& calendars) {
  for (const CalendarContent& calendar : calendars) {
    const int first_weekday = platform::Date(calendar.year, 1, 1).Weekday();
    const auto bit_of = [&](const MarkedDay& day) {
      return static_cast<Weekdays>(1U << ((first_weekday - 1 + day.day_of_year - 1) % 7 + 1));
    };
    Weekdays weekend = 0;
    for (const MarkedDay& day : calendar.days) {
      if (day.kind == RuleKind::kWeekday) weekend |= bit_of(day);
    }
    int& holidays = holidays_[calendar.year];
    for (const MarkedDay& day : calendar.days) {
      if (!IsHoliday(day)) continue;
      weekdays_[day.rule][calendar.year] |= bit_of(day);
      if ((weekend & bit_of(day)) == 0) ++holidays;
    }
  }
}

std::optional<int> ReviewHistory::OnlyWeekdayOf(std::int32_t rule, int year) const {
  const auto found = weekdays_.find(rule);
  if (found == weekdays_.end()) return std::nullopt;
  Weekdays weekdays = 0;
  int years = 0;
  for (const auto& [other_year, stood_on] : found->second) {
    if (other_year == year) continue;
    weekdays |= stood_on;
    ++years;
  }
  if (years < kOtherYears || !std::has_single_bit(weekdays)) return std::nullopt;
  return std::countr_zero(weekdays);
}

std::optional<ReviewHistory::Range> ReviewHistory::HolidaysInOtherYears(int year) const {
  std::optional<Range> range;
  int years = 0;
  for (const auto& [other_year, holidays] : holidays_) {
    if (other_year == year) continue;
    ++years;
    if (!range) range = Range{holidays, holidays};
    range->least = std::min(range->least, holidays);
    range->most = std::max(range->most, holidays);
  }
  return years < kOtherYears ? std::nullopt : range;
}

}  // namespace ferrowind::almanac
