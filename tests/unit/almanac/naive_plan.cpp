#include "tests/unit/almanac/naive_plan.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "ferrowind/almanac/base_dates.h"

namespace ferrowind::testing {
namespace {

using almanac::BookRule;
using almanac::Direction;
using almanac::Move;
using almanac::MoveTarget;
using almanac::RuleBook;
using almanac::RuleKind;
using platform::Date;

constexpr int kFarthestFreeDay = 31;

class NaivePlanner {
 public:
  NaivePlanner(const RuleBook& book, int year) : book_(book), year_(year) {}

  std::map<Date, std::string> Plan() {
    for (std::size_t rule = 0; rule < book_.rules.size(); ++rule) Place(rule);
    for (const auto& [day, rule] : bases_) Decide(day, rule);
    for (std::size_t rule = 0; rule < book_.rules.size(); ++rule) {
      if (book_.rules[rule].expression.IsBetween()) PlaceBetween(rule);
    }
    return Result();
  }

 private:
  /// A rule on a day: its number, and the words for how it stands.
  using Claim = std::pair<std::size_t, std::string>;

  void Place(std::size_t number) {
    const BookRule& rule = book_.rules[number];
    for (int year = year_ - 1; year <= year_ + 1; ++year) {
      for (const Date& day : BaseDates(rule.expression, year, {})) {
        if (rule.kind == RuleKind::kWorkingDay) {
          opened_.emplace(day, number);
        } else if (rule.kind == RuleKind::kWeekday) {
          weekend_.emplace(day, number);
        } else {
          bases_.insert({day, number});
        }
      }
    }
  }

  void Decide(const Date& day, std::size_t number) {
    const BookRule& rule = book_.rules[number];
    const bool is_taken = !claims_[day].empty() && claims_[day].begin()->first < number;
    const bool is_closed = opened_.count(day) == 0 && (is_taken || weekend_.count(day) > 0);
    const auto move =
        std::find_if(rule.expression.moves.begin(), rule.expression.moves.end(), [&](const Move& wanted) {
          if (!wanted.taken && wanted.weekdays.IsEmpty()) return is_closed;
          return (wanted.taken && is_taken) || wanted.weekdays.Contains(day.Weekday());
        });
    std::optional<Date> target;
    if (move != rule.expression.moves.end()) target = TargetOf(move->target, day);
    if (move == rule.expression.moves.end() && is_closed && rule.expression.else_not_observed) return;
    if (!target || is_closed) {
      claims_[day].insert({number, "base"});
      standing_.insert(day);
    }
    if (target) {
      claims_[*target].insert({number, is_closed ? "substitute" : "moved"});
      moved_to_.insert(*target);
    }
  }

  std::optional<Date> TargetOf(const MoveTarget& target, const Date& day) const {
    if (target.weekday != MoveTarget::kFreeDay) {
      const int first = target.direction == Direction::kNearest ? -3
                        : target.direction == Direction::kNext  ? 1
                                                                : -7;
      for (int days = first; days < first + 7; ++days) {
        if (day.AddDays(days).Weekday() == target.weekday && days != 0) return day.AddDays(days);
      }
      return std::nullopt;
    }
    for (int days = 1; days <= kFarthestFreeDay; ++days) {
      const Date candidate = day.AddDays(target.direction == Direction::kNext ? days : -days);
      const bool is_base = std::any_of(bases_.begin(), bases_.end(),
                                       [&](const auto& base) { return base.first == candidate; });
      if (!is_base &&
          opened_.count(candidate) + weekend_.count(candidate) + moved_to_.count(candidate) == 0) {
        return candidate;
      }
    }
    return std::nullopt;
  }

  void PlaceBetween(std::size_t number) {
    const auto& expression = book_.rules[number].expression;
    for (Date day(year_, 1, 1); day.Year() == year_; day = day.AddDays(1)) {
      const bool is_free = claims_[day].empty() && opened_.count(day) + weekend_.count(day) == 0;
      const bool counts = expression.years.Include(year_) &&
                          (expression.only_on.IsEmpty() || expression.only_on.Contains(day.Weekday()));
      if (is_free && counts && standing_.count(day.AddDays(-1)) > 0 && standing_.count(day.AddDays(1)) > 0) {
        claims_[day].insert({number, "base"});
      }
    }
  }

  std::map<Date, std::string> Result() {
    std::map<Date, std::string> days;
    for (Date day(year_, 1, 1); day.Year() == year_; day = day.AddDays(1)) {
      const bool has_claim = !claims_[day].empty();
      if (opened_.count(day) > 0) {
        if (has_claim || weekend_.count(day) > 0) days[day] = std::to_string(opened_.at(day)) + " base";
      } else if (has_claim) {
        days[day] = std::to_string(claims_[day].begin()->first) + ' ' + claims_[day].begin()->second;
      } else if (weekend_.count(day) > 0) {
        days[day] = std::to_string(weekend_.at(day)) + " base";
      }
    }
    return days;
  }

  const RuleBook& book_;
  int year_;
  /// By day the first rule that closes it as a weekday, and the first that opens it.
  std::map<Date, std::size_t> weekend_;
  std::map<Date, std::size_t> opened_;
  /// In the order in which they are decided.
  std::set<std::pair<Date, std::size_t>> bases_;
  std::map<Date, std::set<Claim>> claims_;
  std::set<Date> standing_;
  std::set<Date> moved_to_;
};

}  // namespace

std::map<Date, std::string> NaivePlan(const RuleBook& book, int year) {
  return NaivePlanner(book, year).Plan();
}

}  // namespace ferrowind::testing
