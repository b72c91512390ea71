#include "ferrowind/almanac/plan_builder.h"

#include <algorithm>
#include <tuple>
#include <utility>
#include <variant>

#include "ferrowind/almanac/day_count.h"

namespace ferrowind::almanac {

PlanBuilder::PlanBuilder(const PreparedBook& book, int year)
    : book_(book),
      years_(year),
      first_of_year_(years_.FirstDayOf(year)),
      last_of_year_(years_.FirstDayOf(year + 1) - 1),
      first_(first_of_year_ - kDaysBeyond),
      last_(last_of_year_ + kDaysBeyond) {
  holders_.fill(kNoRule);
  for (auto& rules : weekend_rules_) rules.fill(kNoRule);
  bases_.reserve(2 * book.Dated().size());
  claims_.reserve(2 * book.Dated().size());
}

YearPlan PlanBuilder::Build() {
  MarkWeekends();
  PlaceBases();
  for (const Base& base : bases_) {
    if (!base.opens) DecideBase(base);
  }
  PlaceBetween();
  YearPlan plan(years_.Middle(), book_.Book());
  WriteDays(plan);
  WriteUnknown(plan);
  return plan;
}

void PlanBuilder::MarkWeekends() {
  for (const std::uint32_t rule : book_.Weekly()) {
    const DateExpression& expression = book_.ExpressionOf(rule);
    const int weekday = std::get<EveryWeekday>(expression.anchor).weekday;
    if (!expression.only_on.IsEmpty() && !expression.only_on.Contains(weekday)) continue;
    for (int i = 0; i < 3; ++i) {
      const int year = years_.Middle() - 1 + i;
      if (!expression.years.Include(year)) continue;
      std::uint32_t& kept = weekend_rules_[static_cast<std::size_t>(i)][static_cast<std::size_t>(weekday)];
      if (kept != kNoRule) continue;
      kept = rule;
      const std::int32_t first = std::max(first_, years_.FirstDayOf(year));
      const std::int32_t last = std::min(last_, years_.FirstDayOf(year + 1) - 1);
      for (auto day = first + (weekday - WeekdayOf(first) + 7) % 7; day <= last; day += 7) Set(day, kWeekend);
    }
  }
}

void PlanBuilder::PlaceBases() {
  for (const PreparedBook::Rule& rule : book_.Dated()) {
    rule.base.ForEach(years_, first_, last_, [&](std::int32_t day) {
      bases_.push_back({day, rule.position, rule.opens});
      Set(day, kBaseDate);
      if (rule.opens) Set(day, kOpened);
    });
  }
  const auto key = [](const Base& base) { return std::pair(base.day, base.rule); };
  std::sort(bases_.begin(), bases_.end(),
            [&key](const Base& left, const Base& right) { return key(left) < key(right); });
  // Two anchors can lead to one day.
  bases_.erase(std::unique(bases_.begin(), bases_.end(),
                           [&key](const Base& left, const Base& right) { return key(left) == key(right); }),
               bases_.end());
}

void PlanBuilder::DecideBase(const Base& base) {
  const bool is_taken = holders_[At(base.day)] < base.rule;
  const bool is_closed = !Has(base.day, kOpened) && (is_taken || Has(base.day, kWeekend));
  const DateExpression& expression = book_.ExpressionOf(base.rule);
  if (const auto move = MoveOff(base, is_closed, is_taken)) {
    if (const auto target = TargetOf(expression.moves[*move], base.day)) {
      MoveAway(base, *move, *target, is_closed);
    } else {
      Stand(base);
    }
  } else if (is_closed && expression.else_not_observed) {
    Leave(base, YearPlan::Fate::kDropped, 0);
  } else {
    Stand(base);
  }
}

std::optional<std::size_t> PlanBuilder::MoveOff(const Base& base, bool is_closed, bool is_taken) const {
  const std::vector<Move>& moves = book_.ExpressionOf(base.rule).moves;
  for (std::size_t i = 0; i < moves.size(); ++i) {
    const Move& move = moves[i];
    const bool holds = move.HasConditions()
                           ? (move.taken && is_taken) || move.weekdays.Contains(WeekdayOf(base.day))
                           : is_closed;
    if (holds) return i;
  }
  return std::nullopt;
}

std::optional<std::int32_t> PlanBuilder::TargetOf(const Move& move, std::int32_t day) const {
  const auto [direction, wanted] = move.target;
  if (wanted == MoveTarget::kFreeDay) return NearestFreeDay(day, direction == Direction::kNext ? 1 : -1);
  const int forward = (wanted - WeekdayOf(day) + 7) % 7;
  std::int32_t target = day;
  switch (direction) {
    case Direction::kNext:
      target += forward == 0 ? 7 : forward;
      break;
    case Direction::kPrevious:
      target += forward - 7;
      break;
    case Direction::kNearest:
      target += forward > 3 ? forward - 7 : forward;
      break;
  }
  if (target == day || !IsKnown(target)) return std::nullopt;
  return target;
}

std::optional<std::int32_t> PlanBuilder::NearestFreeDay(std::int32_t day, int step) const {
  for (int i = 1; i <= kFarthestFreeDay; ++i) {
    const std::int32_t candidate = day + i * step;
    if (!IsKnown(candidate)) break;
    if (!Has(candidate, kWeekend | kBaseDate | kMovedHere)) return candidate;
  }
  return std::nullopt;
}

void PlanBuilder::Stand(const Base& base) {
  std::uint32_t& holder = holders_[At(base.day)];
  holder = std::min(holder, base.rule);
  Set(base.day, kStandingBase);
  if (IsInYear(base.day)) claims_.push_back({base.day, base.rule, base.day, Standing::kBase, 0});
}

void PlanBuilder::Leave(const Base& base, YearPlan::Fate fate, std::int32_t target) {
  if (!IsInYear(base.day)) return;
  others_.push_back({PlannedAs({base.day, base.rule, base.day, Standing::kBase, 0}), fate, target});
}

void PlanBuilder::MoveAway(const Base& base, std::size_t move, std::int32_t target, bool is_closed) {
  Claim moved{target, base.rule, base.day, Standing::kMoved, static_cast<std::uint8_t>(move)};
  if (is_closed) {
    moved.standing = Standing::kSubstitute;
    Stand(base);
  } else {
    Leave(base, YearPlan::Fate::kMovedAway, target);
  }
  std::uint32_t& holder = holders_[At(target)];
  holder = std::min(holder, base.rule);
  Set(target, kMovedHere);
  if (IsInYear(target)) claims_.push_back(moved);
}

void PlanBuilder::PlaceBetween() {
  for (const std::uint32_t rule : book_.Between()) {
    const DateExpression& expression = book_.ExpressionOf(rule);
    if (!expression.years.Include(years_.Middle())) continue;
    for (const Base& base : bases_) {
      const std::int32_t day = base.day + 1;
      if (!IsInYear(day) || !Has(base.day, kStandingBase) || !Has(day + 1, kStandingBase)) continue;
      if (Has(day, kWeekend | kOpened | kStandingBase | kMovedHere)) continue;
      if (!expression.only_on.IsEmpty() && !expression.only_on.Contains(WeekdayOf(day))) continue;
      claims_.push_back({day, rule, day, Standing::kBase, 0});
      Set(day, kMovedHere);
    }
  }
}

void PlanBuilder::WriteDays(YearPlan& plan) {
  std::sort(claims_.begin(), claims_.end(), [](const Claim& left, const Claim& right) {
    return std::tie(left.day, left.rule, left.base) < std::tie(right.day, right.rule, right.base);
  });
  constexpr std::size_t kMostWeekendDays = std::size_t{2} * 53;
  plan.days_.reserve(kMostWeekendDays + claims_.size());
  plan.others_ = std::move(others_);
  const Claim* claim = claims_.data();
  const Claim* const end = claim + claims_.size();
  for (std::int32_t day = first_of_year_; day <= last_of_year_; ++day) {
    const Claim* const first_claim = claim;
    while (claim != end && claim->day == day) ++claim;
    if (marks_[At(day)] != 0) WriteDay(plan, day, first_claim, claim);
  }
  std::stable_sort(plan.others_.begin(), plan.others_.end(), [](const auto& left, const auto& right) {
    return std::tie(left.day.day_of_year, left.day.rule) < std::tie(right.day.day_of_year, right.day.rule);
  });
}

void PlanBuilder::WriteDay(YearPlan& plan, std::int32_t day, const Claim* first_claim,
                           const Claim* after_claims) {
  const bool is_weekend = Has(day, kWeekend);
  if (Has(day, kOpened)) {
    if (!is_weekend && first_claim == after_claims) return;
    const auto opening = std::find_if(bases_.begin(), bases_.end(),
                                      [day](const Base& base) { return base.day == day && base.opens; });
    plan.days_.push_back(PlannedAs({day, opening->rule, day, Standing::kBase, 0}));
  } else if (first_claim != after_claims) {
    plan.days_.push_back(PlannedAs(*first_claim++));
  } else if (is_weekend) {
    plan.days_.push_back(PlannedAs({day, WeekendRuleOf(day), day, Standing::kBase, 0}));
  }
  for (; first_claim != after_claims; ++first_claim) {
    plan.others_.push_back({PlannedAs(*first_claim), YearPlan::Fate::kHidden, 0});
  }
}

void PlanBuilder::WriteUnknown(YearPlan& plan) const {
  for (const PreparedBook::TableRule& rule : book_.OfTables()) {
    const auto position = static_cast<std::uint32_t>(rule.position);
    if (!book_.ExpressionOf(position).years.Include(years_.Middle())) continue;
    if (book_.Dated()[rule.rule].base.Knows(years_.Middle()) || IsAnnounced(position)) continue;
    plan.unknown_.push_back({rule.position, rule.table, rule.first_year, rule.last_year});
  }
}

bool PlanBuilder::IsAnnounced(std::uint32_t rule) const {
  const std::vector<BookRule>& rules = book_.Book()->rules;
  return std::any_of(book_.Dated().begin(), book_.Dated().end(), [&](const PreparedBook::Rule& other) {
    if (other.position == rule || rules[other.position].name != rules[rule].name) return false;
    // Of a table that does not reach the year, an offset can bring a single date into it.
    return other.base.Knows(years_.Middle()) &&
           std::any_of(bases_.begin(), bases_.end(),
                       [&](const Base& base) { return base.rule == other.position && IsInYear(base.day); });
  });
}

PlannedDay PlanBuilder::PlannedAs(const Claim& claim) const {
  return {static_cast<std::int16_t>(claim.day - first_of_year_ + 1), claim.standing, claim.move, claim.rule,
          claim.base};
}

std::uint32_t PlanBuilder::WeekendRuleOf(std::int32_t day) const {
  return weekend_rules_[1][static_cast<std::size_t>(WeekdayOf(day))];
}

}  // namespace ferrowind::almanac
