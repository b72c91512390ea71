#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/almanac/calendar_content.h"
#include "ferrowind/almanac/rule_matches.h"
#include "ferrowind/almanac/year_plan.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::almanac {

/// What has to happen to a day so that the calendar is as planned.
enum class PlanAction : std::uint8_t {
  kKeep,
  /// An ordinary working day gets a rule.
  kAdd,
  /// A day gets another rule.
  kReplace,
  /// A day becomes an ordinary working day.
  kRemove,
  /// The day is a working day by exception, and the plan has a holiday or a weekend there.
  kException,
};

/// "keep", "add", "replace", "remove" or "exception".
[[nodiscard]] std::string_view TextOf(PlanAction action);

/// What becomes of days that are working days by exception and that the plan has closed.
enum class ExceptionHandling : std::uint8_t { kOverwrite, kKeep };

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

  /// Whether the day becomes another when the plan is applied.
  [[nodiscard]] bool Changes(ExceptionHandling exceptions) const {
    return action != PlanAction::kKeep &&
           (action != PlanAction::kException || exceptions == ExceptionHandling::kOverwrite);
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
  std::string why;
};

/// The difference between the plan of a year and a calendar of that year.
///
/// A day is as planned when it has the rule of the planned name. A planned working day is a working day by
/// exception, whatever its comment; a day that the plan leaves ordinary may be one too, as it is open either
/// way. Where the plan lacks the dates of a rule, the days that have this rule stay as they are.
class Comparison {
 public:
  /// All three must outlive the comparison. Precondition: `plan` and `content` are of the same year, and
  /// `matches` are those of the plan's book.
  Comparison(const YearPlan& plan, const CalendarContent& content, const RuleMatches& matches);

  [[nodiscard]] const YearPlan& Plan() const { return plan_; }
  /// Every day that the plan or the calendar marks, ascending.
  [[nodiscard]] const std::vector<ComparedDay>& Days() const { return days_; }
  /// Whether any day has another action than to keep it.
  [[nodiscard]] bool Differs() const;
  /// Any day of the year, one of `Days` or one that is an ordinary working day on both sides. Precondition: 1
  /// to 365 or 366.
  [[nodiscard]] ComparedDay DayAt(int day_of_year) const;
  [[nodiscard]] ComparisonLine LineOf(const ComparedDay& day) const;

  /// Why the database would refuse the plan: a sentence without a full stop for each rule that a day would
  /// get and that stands in the database as a removed rule, or as one of another type.
  [[nodiscard]] std::vector<std::string> Obstacles(ExceptionHandling exceptions) const;

 private:
  [[nodiscard]] ComparedDay Compare(const MarkedDay* now, const PlannedDay* should) const;
  [[nodiscard]] const UnknownDates* UnknownDatesOf(const MarkedDay& day, const PlannedDay* should) const;
  [[nodiscard]] std::string NameOf(const MarkedDay& day) const;
  [[nodiscard]] std::string NameOf(const PlannedDay& day) const;

  const YearPlan& plan_;
  const RuleMatches& matches_;
  std::vector<ComparedDay> days_;
};

}  // namespace ferrowind::almanac
