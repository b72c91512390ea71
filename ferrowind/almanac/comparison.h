#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/almanac/calendar_content.h"
#include "ferrowind/almanac/day_choice.h"
#include "ferrowind/almanac/plan_action.h"
#include "ferrowind/almanac/plan_source.h"
#include "ferrowind/almanac/rule_matches.h"
#include "ferrowind/almanac/year_plan.h"
#include "ferrowind/platform/values/date.h"
#include "ferrowind/platform/values/phrase.h"

namespace ferrowind::almanac {

/// A day that the plan or the calendar marks.
struct ComparedDay {
  /// 1 to 366.
  std::int16_t day_of_year = 0;
  PlanAction action = PlanAction::kKeep;
  /// What the calendar has; null for an ordinary working day.
  const MarkedDay* now = nullptr;
  /// What the plan has; null for an ordinary working day.
  const PlannedDay* should = nullptr;
  /// The rule that the day has and whose dates the plan lacks; null when the plan knows what the day should
  /// be.
  const UnknownDates* unknown = nullptr;
  /// Whether it differs because a person has made it so: a working day by exception, or a closed day whose
  /// rule no rule book has and which the plan would open.
  bool is_made_by_hand = false;

  /// Whether it is closed by a rule that no rule book has, and the plan would open it.
  [[nodiscard]] bool IsOutsideBook() const { return is_made_by_hand && action != PlanAction::kException; }
  /// Whether the day becomes another when the plan is applied.
  [[nodiscard]] bool Changes(const DayChoice& choice) const {
    return action != PlanAction::kKeep && choice.Takes(day_of_year, is_made_by_hand);
  }
};

/// A compared day in words.
struct ComparisonLine {
  platform::Date date;
  /// The names of rules; nothing for an ordinary working day.
  std::optional<std::string> now;
  std::optional<std::string> should;
  PlanAction action = PlanAction::kKeep;
  /// Why the day should be so, for operators; without a full stop.
  platform::Phrase why;
};

/// The difference between the plan of a year and a calendar of that year.
///
/// A day is as planned when it has the rule of the planned name. A planned working day is a working day by
/// exception, whatever its comment; a day that the plan leaves ordinary may be one too, as it is open either
/// way. Where the plan lacks the dates of a rule, the days that have this rule stay as they are.
///
/// A rule book need not know every holiday: a day closed by a rule that no book has was closed by a person,
/// for once or as a bank has published it. A rule of another currency's book was assigned by mistake. A list
/// knows all closed days of its year.
class Comparison {
 public:
  /// Whether another currency's book has the rule of that number.
  using RuleOfOthers = std::function<bool(std::int32_t rule)>;

  /// The first three must outlive the comparison. `source` is what the plan was made by; `is_of_others`,
  /// asked here alone, may be empty for no. Precondition: `plan` and `content` are of the same year, and
  /// `matches` are those of the plan's book.
  Comparison(const YearPlan& plan, const CalendarContent& content, const RuleMatches& matches,
             PlanSource source = PlanSource::kRuleBook, const RuleOfOthers& is_of_others = {});

  [[nodiscard]] const YearPlan& Plan() const { return plan_; }
  /// Every day that the plan or the calendar marks, ascending.
  [[nodiscard]] const std::vector<ComparedDay>& Days() const { return days_; }
  /// Whether any day has another action than to keep it.
  [[nodiscard]] bool Differs() const;
  /// Any day of the year, one of `Days` or one that is an ordinary working day on both sides. Precondition: 1
  /// to 365 or 366.
  [[nodiscard]] ComparedDay DayAt(int day_of_year) const;
  [[nodiscard]] ComparisonLine LineOf(const ComparedDay& day) const;

  /// Whether the calendar has a closed day of the rule whose dates the plan lacks. Precondition: it is one of
  /// the plan's `Unknown`.
  [[nodiscard]] bool IsEntered(const UnknownDates& unknown) const;

  /// Why the database would refuse to make the day as planned, a sentence without a full stop: the rule that
  /// it should have stands there as a removed one, or as one of another type. Nothing when it would not.
  [[nodiscard]] std::optional<platform::Phrase> ObstacleOf(const ComparedDay& day) const;
  /// The obstacles of the days that `choice` takes, one for each rule.
  [[nodiscard]] std::vector<platform::Phrase> Obstacles(const DayChoice& choice) const;

 private:
  [[nodiscard]] ComparedDay Compare(const MarkedDay* now, const PlannedDay* should,
                                    const RuleOfOthers& is_of_others) const;
  [[nodiscard]] const UnknownDates* UnknownDatesOf(const MarkedDay& day, const PlannedDay* should) const;
  /// Of a day that differs.
  [[nodiscard]] bool IsMadeByHand(const ComparedDay& day, const RuleOfOthers& is_of_others) const;
  [[nodiscard]] platform::Phrase WhyOf(const ComparedDay& day) const;
  [[nodiscard]] std::string NameOf(const MarkedDay& day) const;
  [[nodiscard]] std::string NameOf(const PlannedDay& day) const;

  const YearPlan& plan_;
  const RuleMatches& matches_;
  PlanSource source_;
  std::vector<ComparedDay> days_;
};

}  // namespace ferrowind::almanac
