#include "ferrowind/almanac/plan_reasons.h"

#include <algorithm>
#include <string>
#include <utility>
#include <variant>

#include "ferrowind/almanac/date_words.h"
#include "ferrowind/almanac/day_count.h"
#include "ferrowind/almanac/expression_words.h"

namespace ferrowind::almanac {

using platform::Phrase;

namespace {

Phrase WeekdayOfDay(std::int32_t serial) { return Weekday(WeekdayOf(serial)); }

std::string CommentOnTarget(const MoveTarget& target) {
  if (target.weekday != MoveTarget::kFreeDay) {
    std::string words = WordsOfTarget(target).InEnglish();
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
  std::string days = AnyOf(move.weekdays).InEnglish();
  if (AreSaturdayAndSunday(move.weekdays)) days = is_date ? "on a weekend" : "a weekend";
  if (!move.taken) return days;
  return days.empty() ? (is_date ? "another holiday" : "another one") : days + " or another holiday";
}

}  // namespace

Phrase PlanReasons::WhyOf(int day_of_year) const {
  const PlannedDay* day = plan_.Find(day_of_year);
  if (day == nullptr) return Phrase::Of("An ordinary working day%1", {AlsoOn(day_of_year)});
  Phrase why = Reason(*day);
  const std::int32_t serial = SerialOfDay(day_of_year);
  if (plan_.KindOf(*day) == RuleKind::kWorkingDay && IsWeekend(serial)) {
    why = Phrase::Of("%1; a working %2", {std::move(why), WeekdayOfDay(serial)});
  }
  return Phrase::Of("%1%2", {std::move(why), AlsoOn(day_of_year)});
}

Phrase PlanReasons::AlsoOn(int day_of_year) const {
  Phrase all;
  for (const YearPlan::Other& other : plan_.others_) {
    if (other.day.day_of_year == day_of_year) all = Phrase::Of("%1; %2", {std::move(all), ReasonOf(other)});
  }
  return all;
}

std::string PlanReasons::CommentOf(const PlannedDay& day) const {
  const BookRule& rule = RuleOf(day);
  if (day.standing != Standing::kSubstitute) return rule.comment;
  const Move& move = rule.expression.moves[day.move];
  const auto* date = std::get_if<FixedDate>(&rule.expression.anchor);
  const bool is_of_one_date = date != nullptr && rule.expression.steps.empty() && !SharesMovedName(rule);
  const std::string holiday = is_of_one_date ? DayAndMonth(date->month, date->day).InEnglish() : "a holiday";
  return CommentOnTarget(move.target) + ", when " + holiday + " is " + (is_of_one_date ? "" : "on ") +
         ClosedDays(move, is_of_one_date);
}

Phrase PlanReasons::Reason(const PlannedDay& day) const {
  if (day.standing != Standing::kBase) return ReasonOfMove(day);
  const DateExpression& expression = RuleOf(day).expression;
  return expression.IsBetween() ? ReasonOfBetween(day) : WordsOfBase(expression, day.base);
}

Phrase PlanReasons::ReasonOfMove(const PlannedDay& day) const {
  const BookRule& rule = RuleOf(day);
  const Move& move = rule.expression.moves[day.move];
  const bool tells_name = plan_.NameOf(day).find(rule.name) != std::string::npos;
  Phrase subject = LongDate(day.base);
  if (!tells_name) subject = Phrase::Of("%1, %2,", {rule.name, std::move(subject)});
  const Phrase target = WordsOfTarget(move.target);
  if (IsWeekend(day.base) || move.weekdays.Contains(WeekdayOf(day.base))) {
    return Phrase::Of("%1 is a %2; moved to %3", {std::move(subject), WeekdayOfDay(day.base), target});
  }
  const PlannedDay* holder =
      YearOf(day.base) == plan_.Year() ? plan_.Find(day.base - SerialOfDay(1) + 1) : nullptr;
  const Phrase taker = holder == nullptr || holder->rule == day.rule ? Phrase::Of("another holiday")
                                                                     : Phrase(plan_.NameOf(*holder));
  return Phrase::Of("%1 is taken by %2; moved to %3", {std::move(subject), taker, target});
}

Phrase PlanReasons::ReasonOfBetween(const PlannedDay& day) const {
  const std::string before = NameOn(day.day_of_year - 1);
  const std::string after = NameOn(day.day_of_year + 1);
  if (before.empty() || after.empty()) return Phrase::Of("Between two holidays");
  return Phrase::Of("Between %1 and %2", {before, after});
}

std::string PlanReasons::NameOn(int day_of_year) const {
  const PlannedDay* day = plan_.Find(day_of_year);
  return day == nullptr ? std::string() : plan_.NameOf(*day);
}

Phrase PlanReasons::ReasonOf(const YearPlan::Other& other) const {
  const std::string name = plan_.NameOf(other.day);
  switch (other.fate) {
    case YearPlan::Fate::kHidden:
      return Phrase::Of("%1 is on this day too: %2", {name, Reason(other.day)});
    case YearPlan::Fate::kMovedAway:
      return Phrase::Of("%1 moved from here to %2", {name, LongDate(other.target)});
    case YearPlan::Fate::kDropped:
      return Phrase::Of("%1 is not observed on a closed day: %2", {name, Reason(other.day)});
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
