#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/almanac/comparison.h"
#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/year_planner.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::planning {

/// What makes a day of a calendar what it is, for operators; texts without full stops.
struct DayStory {
  enum class State : std::uint8_t { kOrdinary, kException, kClosed };
  enum class Opinion : std::uint8_t {
    /// Nothing tells what the day should be; `opinion` says why.
    kNone,
    kAsPlanned,
    kOtherwise,
    /// The plan lacks the dates of the rule that the day has; `opinion` says which.
    kUnknown,
  };

  platform::Date day;
  State state = State::kOrdinary;
  /// The name of its rule; empty on an ordinary working day.
  std::string rule = {};
  /// Whether the rule has single days in a year, which are told in `SameDay`: not one for a weekday, and not
  /// the built-in one.
  bool has_dated_rule = false;
  /// The day's own text, which is the reason of an exception; empty without one.
  std::string comment = {};
  /// By which the currency's book gives the rule its days; empty where the book has no such rule.
  std::string expression = {};
  Opinion opinion_kind = Opinion::kNone;
  /// "as planned: Easter Sunday 16 April 2028, two days before".
  std::string opinion = {};
  /// Whose word the plan is; empty without a plan.
  std::string source = {};
};

/// A day and its rule in another year.
struct SameDay {
  int year = 0;
  /// Whether there is a calendar of that year; otherwise nothing is known.
  bool is_prepared = false;
  /// The day of the same date; 28 February for 29 February in a common year.
  platform::Date day;
  /// The name of the rule that it has; empty on an ordinary working day.
  std::string rule = {};
  /// The days of the year that have the rule of the day asked for, ascending; none where that has no dated
  /// rule.
  std::vector<platform::Date> days_of_rule = {};
};

/// What is known of the days of one calendar, as it was when this was made.
class CalendarStory {
 public:
  /// How many years before and behind the calendar's are looked at.
  static constexpr int kYearsAround = 2;

  /// Reads the calendar, those around it, and what is planned; fails as database_call.h says.
  CalendarStory(std::int32_t currency_id, int year, const almanac::DateTables& tables);

  /// Precondition for both: a day of the calendar's year.
  [[nodiscard]] DayStory Of(const platform::Date& day) const;
  /// The years around, ascending, without the calendar's own.
  [[nodiscard]] std::vector<SameDay> Around(const platform::Date& day) const;
  /// Who changed the day last, when and how: "anna, 3/03/2027 Wed 09:14: Assigned Good Friday to 14 April
  /// 2028"; empty when the history knows of no change. Reads it now; fails as database_call.h says.
  [[nodiscard]] std::string LoadLastChange(const platform::Date& day) const;

 private:
  [[nodiscard]] const almanac::MarkedDay* MarkedIn(int year, int day_of_year) const;
  [[nodiscard]] std::string NameOf(const almanac::MarkedDay& day) const;
  void TellPlan(const almanac::ComparedDay& day, DayStory& story) const;
  [[nodiscard]] std::string ExpressionOf(const almanac::ComparedDay& day) const;

  YearPlanner planner_;
  Currency currency_;
  int year_;
  /// By year; those that do not exist are missing.
  std::map<int, almanac::CalendarContent> contents_;
  /// Null where nothing can be planned, for the reason below.
  std::unique_ptr<const YearPreparation> preparation_;
  std::string why_no_plan_;
};

}  // namespace ferrowind::planning
