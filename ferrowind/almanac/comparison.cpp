#include "ferrowind/almanac/comparison.h"

#include <algorithm>
#include <set>
#include <utility>

namespace ferrowind::almanac {

using platform::Phrase;

namespace {

//: said
const char* TypeInWords(RuleKind kind) {
  switch (kind) {
    case RuleKind::kWorkingDay:
      return "a working day";
    case RuleKind::kWeekday:
      return "a weekday holiday";
    case RuleKind::kCelebration:
      return "a celebration";
    case RuleKind::kPoint:
      return "a holiday point";
  }
  return "of an unknown type";
}

}  // namespace

Comparison::Comparison(const YearPlan& plan, const CalendarContent& content, const RuleMatches& matches,
                       PlanSource source, const RuleOfOthers& is_of_others)
    : plan_(plan), matches_(matches), source_(source) {
  days_.reserve(std::max(plan.Days().size(), content.days.size()));
  auto should = plan.Days().begin();
  auto now = content.days.begin();
  while (should != plan.Days().end() || now != content.days.end()) {
    const bool is_planned =
        now == content.days.end() || (should != plan.Days().end() && should->day_of_year <= now->day_of_year);
    const bool is_marked =
        should == plan.Days().end() || (now != content.days.end() && now->day_of_year <= should->day_of_year);
    days_.push_back(Compare(is_marked ? &*now : nullptr, is_planned ? &*should : nullptr, is_of_others));
    if (is_marked) ++now;
    if (is_planned) ++should;
  }
}

ComparedDay Comparison::Compare(const MarkedDay* now, const PlannedDay* should,
                                const RuleOfOthers& is_of_others) const {
  ComparedDay day{now != nullptr ? now->day_of_year : should->day_of_year,
                  PlanAction::kKeep,
                  now,
                  should,
                  nullptr,
                  false};
  if (now == nullptr) {
    day.action = PlanAction::kAdd;
    return day;
  }
  if (should != nullptr) {
    const KnownRule* const rule = matches_.RuleOf(*should);
    if (rule != nullptr && rule->id == now->rule) return day;
  } else if (!now->IsClosed()) {
    return day;
  }
  if (!plan_.Unknown().empty()) day.unknown = UnknownDatesOf(*now, should);
  if (day.unknown != nullptr) return day;
  if (should == nullptr) {
    day.action = PlanAction::kRemove;
  } else {
    day.action = now->IsClosed() ? PlanAction::kReplace : PlanAction::kException;
  }
  day.is_made_by_hand = IsMadeByHand(day, is_of_others);
  return day;
}

bool Comparison::IsMadeByHand(const ComparedDay& day, const RuleOfOthers& is_of_others) const {
  if (day.action == PlanAction::kException) return true;
  // Weekends come from plans alone.
  if (source_ == PlanSource::kList || day.now->kind == RuleKind::kWeekday) return false;
  if (day.should != nullptr && plan_.KindOf(*day.should) != RuleKind::kWorkingDay) return false;
  for (std::size_t rule = 0; rule < plan_.Book().rules.size(); ++rule) {
    if (matches_.HasNameOf(rule, day.now->rule)) return false;
  }
  return !is_of_others || !is_of_others(day.now->rule);
}

const UnknownDates* Comparison::UnknownDatesOf(const MarkedDay& day, const PlannedDay* should) const {
  const bool is_on_weekend = should != nullptr && plan_.KindOf(*should) == RuleKind::kWeekday;
  for (const UnknownDates& unknown : plan_.Unknown()) {
    // A working day that the book would announce opens a weekend; an exception on a holiday is none of it.
    const bool may_be = plan_.Book().rules[unknown.rule].kind != RuleKind::kWorkingDay || is_on_weekend;
    if (may_be && matches_.HasNameOf(unknown.rule, day.rule)) return &unknown;
  }
  return nullptr;
}

bool Comparison::Differs() const {
  return std::any_of(days_.begin(), days_.end(),
                     [](const ComparedDay& day) { return day.action != PlanAction::kKeep; });
}

std::string Comparison::NameOf(const MarkedDay& day) const {
  const KnownRule* const rule = matches_.Directory().Find(day.rule);
  return rule != nullptr ? rule->name : "Rule " + std::to_string(day.rule);
}

std::string Comparison::NameOf(const PlannedDay& day) const {
  if (plan_.KindOf(day) != RuleKind::kWorkingDay) return plan_.NameOf(day);
  const KnownRule* const rule = matches_.Directory().Find(kExceptionRule);
  // Only a broken database lacks the built-in rule.
  return rule != nullptr ? rule->name : kExceptionName;
}

ComparisonLine Comparison::LineOf(const ComparedDay& day) const {
  const platform::Date new_year(plan_.Year(), 1, 1);
  ComparisonLine line{new_year.AddDays(day.day_of_year - 1), {}, {}, day.action, {}};
  if (day.now != nullptr) line.now = NameOf(*day.now);
  if (day.unknown != nullptr) {
    line.should = line.now;
    line.why = Phrase::Of("The plan does not know this year's dates of %1",
                          {plan_.Book().rules[day.unknown->rule].name});
    if (!day.unknown->table.empty()) {
      line.why = Phrase::Of("%1, which the table %2 does not reach", {line.why, day.unknown->table});
    }
    return line;
  }
  if (day.should != nullptr) line.should = NameOf(*day.should);
  line.why = WhyOf(day);
  return line;
}

Phrase Comparison::WhyOf(const ComparedDay& day) const {
  if (source_ == PlanSource::kList && day.action == PlanAction::kRemove) return Phrase::Of("Not in the list");
  if (!day.IsOutsideBook()) return plan_.WhyOf(day.day_of_year);
  Phrase why = Phrase::Of("Not in the rule book: %1", {NameOf(*day.now)});
  return day.should == nullptr ? Phrase::Of("%1%2", {std::move(why), plan_.AlsoOn(day.day_of_year)})
                               : Phrase::Of("%1; %2", {std::move(why), plan_.WhyOf(day.day_of_year)});
}

ComparedDay Comparison::DayAt(int day_of_year) const {
  const auto found =
      std::lower_bound(days_.begin(), days_.end(), day_of_year,
                       [](const ComparedDay& day, int wanted) { return day.day_of_year < wanted; });
  if (found != days_.end() && found->day_of_year == day_of_year) return *found;
  return ComparedDay{static_cast<std::int16_t>(day_of_year)};
}

bool Comparison::IsEntered(const UnknownDates& unknown) const {
  return std::any_of(days_.begin(), days_.end(), [&](const ComparedDay& day) {
    return day.now != nullptr && day.now->IsClosed() && matches_.HasNameOf(unknown.rule, day.now->rule);
  });
}

std::optional<Phrase> Comparison::ObstacleOf(const ComparedDay& day) const {
  if (day.action == PlanAction::kKeep || day.should == nullptr) return std::nullopt;
  const KnownRule* const rule = matches_.RuleOf(*day.should);
  if (rule == nullptr) return std::nullopt;
  if (rule->is_removed) return Phrase::Of("The rule \"%1\" is removed; restore it before", {rule->name});
  const RuleKind planned = plan_.KindOf(*day.should);
  if (rule->kind == planned) return std::nullopt;
  return Phrase::Of("The rule \"%1\" is %2, and the plan needs %3 of that name; rename it before",
                    {rule->name, Phrase::Of(TypeInWords(rule->kind)), Phrase::Of(TypeInWords(planned))});
}

std::vector<Phrase> Comparison::Obstacles(const DayChoice& choice) const {
  std::vector<Phrase> obstacles;
  std::set<const KnownRule*> told;
  for (const ComparedDay& day : days_) {
    if (!day.Changes(choice)) continue;
    auto obstacle = ObstacleOf(day);
    if (obstacle && told.insert(matches_.RuleOf(*day.should)).second) {
      obstacles.push_back(std::move(*obstacle));
    }
  }
  return obstacles;
}

}  // namespace ferrowind::almanac
