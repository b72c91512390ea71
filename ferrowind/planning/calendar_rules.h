#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/year_planner.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::planning {

/// The holiday rules of a database as one calendar has them, and as its currency is concerned by them; as all
/// that was when this was made. Rules are numbers.
class CalendarRules {
 public:
  /// How far the calendars of other years tell whose a rule is.
  static constexpr int kYearsBefore = 2;
  static constexpr int kYearsBehind = 1;

  /// Reads the calendar, those near it, and the books; fails as database_call.h says. A calendar that does
  /// not exist has no days.
  CalendarRules(std::int32_t currency_id, int year, const almanac::DateTables& tables);

  [[nodiscard]] const Currency& Owner() const { return currency_; }
  [[nodiscard]] int Year() const { return year_; }
  [[nodiscard]] const almanac::CalendarContent& Content() const { return content_; }
  [[nodiscard]] const almanac::RuleDirectory& Rules() const { return planner_.Rules(); }
  /// The plan of the year; null when it cannot be planned.
  [[nodiscard]] const almanac::YearPlan* Plan() const { return plan_ ? &*plan_ : nullptr; }

  /// The days of the calendar that have the rule, ascending.
  [[nodiscard]] const std::vector<platform::Date>& DaysOf(std::int32_t rule) const;
  /// The days that the plan gives the rule of that name, ascending.
  [[nodiscard]] std::vector<platform::Date> PlannedDaysOf(const std::string& name) const;

  /// Whether the rule is of interest to the currency: its book names it, or one of its calendars has it, or
  /// nothing of that is so for any currency, as with a rule that was just made.
  [[nodiscard]] bool IsOfInterest(std::int32_t rule) const;
  /// Whether the currency's own book names it.
  [[nodiscard]] bool IsInBook(std::int32_t rule) const;
  /// The codes of the other currencies whose books name the rule, ascending.
  [[nodiscard]] std::vector<std::string> OtherBooksOf(std::int32_t rule) const;

 private:
  void AddCalendars();

  YearPlanner planner_;
  Currency currency_;
  int year_;
  almanac::CalendarContent content_;
  std::optional<almanac::YearPlan> plan_;
  std::map<std::int32_t, std::vector<platform::Date>> days_;
  /// By rule, the numbers of the currencies whose calendars have it.
  std::map<std::int32_t, std::set<std::int32_t>> calendars_;
};

}  // namespace ferrowind::planning
