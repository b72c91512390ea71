#include "tests/unit/almanac/random_expressions.h"

#include <algorithm>
#include <cctype>

#include "ferrowind/almanac/day_count.h"

namespace ferrowind::testing {

using namespace almanac;

DateExpression RandomExpressions::Any() { return Make(false); }

DateExpression RandomExpressions::Dated() { return Make(true); }

int RandomExpressions::Number(int least, int most) {
  return std::uniform_int_distribution<int>(least, most)(engine_);
}

std::string RandomExpressions::Scrambled(const std::string& text) {
  std::string scrambled;
  for (const char c : text) {
    const bool is_blank = c == ' ';
    if (is_blank && Once(3)) scrambled += Once(2) ? "\t" : "\n  ";
    scrambled += Once(2) ? static_cast<char>(std::toupper(c)) : static_cast<char>(std::tolower(c));
  }
  return Once(3) ? ' ' + scrambled + '\r' : scrambled;
}

Anchor RandomExpressions::AnyAnchor(bool is_dated, bool has_steps) {
  switch (Number(1, is_dated ? 5 : has_steps ? 6 : 9)) {
    case 1: {
      const int month = Number(1, 12);
      return FixedDate{month, Number(1, DaysInMonth(2000, month))};
    }
    case 2:
      return SingleDate{platform::Date::FromSerial(Number(SerialOf(2020, 1, 1), SerialOf(2040, 12, 31)))};
    case 3:
      return EasterDate{Once(2) ? Church::kWestern : Church::kOrthodox,
                        Once(10) ? Number(-366, 366) : Number(-60, 60)};
    case 4:
      return NthWeekday{Number(0, 5), Number(1, 7), Number(1, 12)};
    case 5:
      return EquinoxDate{Once(2) ? Equinox::kVernal : Equinox::kAutumnal, Number(-12 * 60, 14 * 60)};
    case 6:
      return TableDate{Once(2) ? "a" : "b2-c", Number(-5, 5)};
    case 7:
      return EveryWeekday{Number(1, 7)};
    case 8:
      return BetweenHolidays{};
    default:
      return UnknownDate{};
  }
}

WeekdaySet RandomExpressions::AnyWeekdays() {
  WeekdaySet weekdays;
  for (int count = Number(1, 3); count > 0; --count) weekdays.Add(Number(1, 7));
  return weekdays;
}

Move RandomExpressions::AnyMove() {
  Move move;
  if (!Once(3)) {
    if (!Once(4)) move.weekdays = AnyWeekdays();
    move.taken = Once(2);
  }
  const bool is_free_day = Once(2);
  move.target.weekday = is_free_day ? MoveTarget::kFreeDay : Number(1, 7);
  move.target.direction = static_cast<Direction>(Number(is_free_day ? 1 : 0, 2));
  return move;
}

YearLimits RandomExpressions::AnyYears() {
  YearLimits years;
  if (Once(3)) years.from = Number(2020, 2030);
  if (Once(3)) years.to = Number(years.from.value_or(2020), 2040);
  if (!Once(3)) return years;
  years.choice = Once(2) ? YearChoice::kOnly : YearChoice::kNot;
  for (int count = Number(1, 9); count > 0; --count) years.years.push_back(Number(2020, 2040));
  std::sort(years.years.begin(), years.years.end());
  years.years.erase(std::unique(years.years.begin(), years.years.end()), years.years.end());
  return years;
}

DateExpression RandomExpressions::Make(bool is_dated) {
  DateExpression expression;
  if (Once(4)) {
    for (int count = Number(1, static_cast<int>(DateExpression::kMostSteps)); count > 0; --count) {
      expression.steps.push_back({Number(1, 7), static_cast<Relation>(Number(0, 3))});
    }
  }
  expression.anchor = AnyAnchor(is_dated, !expression.steps.empty());
  if (Once(8)) expression.only_on = AnyWeekdays();
  for (int count = Number(0, 3); count > 0; --count) expression.moves.push_back(AnyMove());
  expression.else_not_observed = Once(4);
  if (Once(3)) expression.years = AnyYears();
  return expression;
}

}  // namespace ferrowind::testing
