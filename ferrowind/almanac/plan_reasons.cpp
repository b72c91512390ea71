#include "ferrowind/almanac/plan_reasons.h"

#include <algorithm>
#include <variant>

#include "ferrowind/almanac/date_words.h"
#include "ferrowind/almanac/day_count.h"
#include "ferrowind/almanac/expression_words.h"

namespace ferrowind::almanac {
namespace {

std::string WeekdayOfDay(std::int32_t serial) { return std::string(WeekdayName(WeekdayOf(serial))); }

std::string CommentOnTarget(const MoveTarget& target) {
  if (target.weekday != MoveTarget::kFreeDay) {
    std::string words = WordsOfTarget(target);
    if (target.direction == Direction::kNearest) words = "the " + words;
    words[0] = 'T';
    return words;
  }
  return target.direction == Direction::kNext ? "First free weekday" : "Last free weekday before";
}

bool AreSaturdayAndSunday(WeekdaySet weekdays) {
  WeekdaySet weekend;
  weekend.Add(1);
  weekend.Add(7);
  return weekdays == weekend;
}

/// The days off which a holiday moves, behind "25 December is" or "a holiday is on".
std::string ClosedDays(const Move& move, bool is_date) {
  if (!move.HasConditions()) return "a closed day";
  std::string days = AnyOf(move.weekdays);
  if (AreSaturdayAndSunday(move.weekdays)) days = is_date ? "on a weekend" : "a weekend";
  if (!move.taken) return days;
  return days.empty() ? (is_date ? "another holiday" : "another one") : days + " or another holiday";
}

}  // namespace

std::string PlanReasons::WhyOf(int day_of_year) const {
  const PlannedDay* day = plan_.Find(day_of_year);
  std::string why = day == nullptr ? "An ordinary working day" : Reason(*day);
  if (day != nullptr && plan_.KindOf(*day) == RuleKind::kWorkingDay) {
    const std::int32_t serial = SerialOfDay(day_of_year);
    if (IsWeekend(serial)) why += "; a working " + WeekdayOfDay(serial);
  }
  for (const YearPlan::Other& other : plan_.others_) {
    if (other.day.day_of_year == day_of_year) why += "; " + ReasonOf(other);
  }
  return why;
}

std::string PlanReasons::CommentOf(const PlannedDay& day) const {
  const BookRule& rule = RuleOf(day);
  if (day.standing != Standing::kSubstitute) return rule.comment;
  const Move& move = rule.expression.moves[day.move];
  const auto* date = std::get_if<FixedDate>(&rule.expression.anchor);
  const bool is_of_one_date = date != nullptr && rule.expression.steps.empty() && !SharesMovedName(rule);
  const std::string holiday = is_of_one_date ? DayAndMonth(date->month, date->day) : "a holiday";
  return CommentOnTarget(move.target) + ", when " + holiday + " is " + (is_of_one_date ? "" : "on ") +
         ClosedDays(move, is_of_one_date);
}

std::string PlanReasons::Reason(const PlannedDay& day) const {
  if (day.standing != Standing::kBase) return ReasonOfMove(day);
  const DateExpression& expression = RuleOf(day).expression;
  return expression.IsBetween() ? ReasonOfBetween(day) : WordsOfBase(expression, day.base);
}

std::string PlanReasons::ReasonOfMove(const PlannedDay& day) const {
  const BookRule& rule = RuleOf(day);
  const Move& move = rule.expression.moves[day.move];
  const bool tells_name = plan_.NameOf(day).find(rule.name) != std::string::npos;
  const std::string subject =
      (tells_name ? "" : rule.name + ", ") + LongDate(day.base) + (tells_name ? "" : ",");
  const std::string target = "; moved to " + WordsOfTarget(move.target);
  if (IsWeekend(day.base) || move.weekdays.Contains(WeekdayOf(day.base))) {
    return subject + " is a " + WeekdayOfDay(day.base) + target;
  }
  const PlannedDay* holder =
      YearOf(day.base) == plan_.Year() ? plan_.Find(day.base - SerialOfDay(1) + 1) : nullptr;
  return subject + " is taken by " +
         (holder == nullptr || holder->rule == day.rule ? "another holiday" : plan_.NameOf(*holder)) + target;
}

std::string PlanReasons::ReasonOfBetween(const PlannedDay& day) const {
  const std::string before = NameOn(day.day_of_year - 1);
  const std::string after = NameOn(day.day_of_year + 1);
  if (before.empty() || after.empty()) return "Between two holidays";
  return "Between " + before + " and " + after;
}

std::string PlanReasons::NameOn(int day_of_year) const {
  const PlannedDay* day = plan_.Find(day_of_year);
  return day == nullptr ? std::string() : plan_.NameOf(*day);
}

std::string PlanReasons::ReasonOf(const YearPlan::Other& other) const {
  const std::string name = plan_.NameOf(other.day);
  switch (other.fate) {
    case YearPlan::Fate::kHidden:
      return name + " is on this day too: " + Reason(other.day);
    case YearPlan::Fate::kMovedAway:
      return name + " moved from here to " + LongDate(other.target);
    case YearPlan::Fate::kDropped:
      return name + " is not observed on a closed day: " + Reason(other.day);
  }
  return name;
}

bool PlanReasons::IsWeekend(std::int32_t serial) const {
  const int weekday = WeekdayOf(serial);
  return std::any_of(plan_.Book().rules.begin(), plan_.Book().rules.end(), [&](const BookRule& rule) {
    const auto* every = std::get_if<EveryWeekday>(&rule.expression.anchor);
    return every != nullptr && every->weekday == weekday && rule.kind != RuleKind::kWorkingDay &&
           rule.expression.years.Include(YearOf(serial));
  });
}

bool PlanReasons::SharesMovedName(const BookRule& rule) const {
  const std::string name = rule.NameOfMovedDay();
  return std::any_of(plan_.Book().rules.begin(), plan_.Book().rules.end(), [&](const BookRule& other) {
    return other.expression.anchor != rule.expression.anchor && !other.expression.moves.empty() &&
           other.NameOfMovedDay() == name;
  });
}

std::int32_t PlanReasons::SerialOfDay(int day_of_year) const {
  return SerialOf(plan_.Year(), 1, 1) + day_of_year - 1;
}

}  // namespace ferrowind::almanac
