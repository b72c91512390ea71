#include "ferrowind/almanac/anchor_day.h"

#include <algorithm>
#include <numeric>
#include <type_traits>

#include "ferrowind/almanac/day_count.h"
#include "ferrowind/almanac/easter.h"
#include "ferrowind/almanac/equinox.h"

namespace ferrowind::almanac {
namespace {

constexpr int kLeapYear = 2000;
constexpr int kCommonYear = 2001;

/// Days from `weekday` on to the next `wanted`, 0 to 6.
int DaysUntil(int weekday, int wanted) { return (wanted - weekday + 7) % 7; }

std::optional<std::int32_t> DayIn(int year, const FixedDate& date) {
  if (date.month == 2 && date.day == 29 && !IsLeap(year)) return std::nullopt;
  return SerialOf(year, date.month, date.day);
}

std::optional<std::int32_t> DayIn(int year, const NthWeekday& nth) {
  const int days = DaysInMonth(year, nth.month);
  const std::int32_t first = SerialOf(year, nth.month, 1);
  const std::int32_t last = first + days - 1;
  if (nth.ordinal == NthWeekday::kLast) return last - DaysUntil(nth.weekday, WeekdayOf(last));
  const std::int32_t day = first + DaysUntil(WeekdayOf(first), nth.weekday) + 7 * (nth.ordinal - 1);
  if (day > last) return std::nullopt;
  return day;
}

/// From the month's first day in common years to its last in leap years, on which months begin a day later.
DaySpan SpanOfMonth(int month, int first_day, int last_day) {
  return {SerialOf(kCommonYear, month, first_day) - SerialOf(kCommonYear, 1, 1),
          SerialOf(kLeapYear, month, last_day) - SerialOf(kLeapYear, 1, 1)};
}

DaySpan Shifted(DaySpan span, int days) { return {span.first + days, span.last + days}; }

}  // namespace

std::optional<std::int32_t> AnchorDay(const Anchor& anchor, int year) {
  if (const auto* date = std::get_if<FixedDate>(&anchor)) return DayIn(year, *date);
  if (const auto* nth = std::get_if<NthWeekday>(&anchor)) return DayIn(year, *nth);
  if (const auto* easter = std::get_if<EasterDate>(&anchor)) {
    return EasterSunday(easter->church, year) + easter->offset;
  }
  if (const auto* equinox = std::get_if<EquinoxDate>(&anchor)) {
    return DayOfEquinox(equinox->equinox, year, equinox->utc_offset_minutes);
  }
  if (const auto* single = std::get_if<SingleDate>(&anchor);
      single != nullptr && single->date.Year() == year) {
    return single->date.Serial();
  }
  return std::nullopt;
}

DaySpan SpanOfAnchor(const Anchor& anchor) {
  if (const auto* date = std::get_if<FixedDate>(&anchor)) {
    // 29 February has no place in the year by which the first day is counted.
    return SpanOfMonth(date->month, std::min(date->day, DaysInMonth(kCommonYear, date->month)), date->day);
  }
  if (const auto* nth = std::get_if<NthWeekday>(&anchor)) {
    return SpanOfMonth(nth->month, 1, DaysInMonth(kLeapYear, nth->month));
  }
  if (const auto* easter = std::get_if<EasterDate>(&anchor)) {
    const bool is_western = easter->church == Church::kWestern;
    // Until 2199 the Julian calendar's Easter is at most 14 days later than by the other's count.
    const DaySpan sunday = is_western ? SpanOfMonth(3, 22, 31) : SpanOfMonth(4, 3, 30);
    return Shifted({sunday.first, sunday.last + (is_western ? 25 : 10)}, easter->offset);
  }
  if (const auto* equinox = std::get_if<EquinoxDate>(&anchor)) {
    return SpanOfMonth(equinox->equinox == Equinox::kVernal ? 3 : 9, 18, 26);
  }
  return {0, 365};
}

std::int32_t TakeStep(const WeekdayStep& step, std::int32_t day) {
  const int weekday = WeekdayOf(day);
  switch (step.relation) {
    case Relation::kOnOrAfter:
      return day + DaysUntil(weekday, step.weekday);
    case Relation::kAfter:
      return day + 1 + DaysUntil(weekday % 7 + 1, step.weekday);
    case Relation::kOnOrBefore:
      return day - DaysUntil(step.weekday, weekday);
    case Relation::kBefore:
      return day - 1 - DaysUntil(step.weekday, (weekday + 5) % 7 + 1);
  }
  return day;
}

DaySpan SpanOfStep(Relation relation) {
  switch (relation) {
    case Relation::kOnOrAfter:
      return {0, 6};
    case Relation::kAfter:
      return {1, 7};
    case Relation::kOnOrBefore:
      return {-6, 0};
    case Relation::kBefore:
      return {-7, -1};
  }
  return {};
}

std::int32_t TakeSteps(const DateExpression& expression, std::int32_t anchor_day) {
  return std::accumulate(expression.steps.rbegin(), expression.steps.rend(), anchor_day,
                         [](std::int32_t day, const WeekdayStep& step) { return TakeStep(step, day); });
}

}  // namespace ferrowind::almanac
