#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "ferrowind/almanac/calendar_content.h"
#include "ferrowind/almanac/rule_directory.h"
#include "ferrowind/almanac/year_readiness.h"
#include "ferrowind/planning/currency_list.h"

namespace ferrowind::planning {

/// Selected days of one of the calendars of an overview.
struct SelectedDays {
  /// The position of the calendar.
  std::size_t calendar = 0;
  /// Days of the year, ascending, at least one.
  std::vector<std::int16_t> days = {};

  friend bool operator==(const SelectedDays&, const SelectedDays&) = default;
};

/// The calendars of a year of some currencies, as the calling thread's database held them when this was made.
class YearOverview {
 public:
  struct Calendar {
    Currency currency;
    /// Otherwise nobody knows which days are closed.
    bool exists = false;
    /// By its closed days alone. Of one that is not prepared nobody knows which days will be closed.
    almanac::Readiness readiness = almanac::Readiness::kNotPrepared;
    almanac::CalendarContent content;
  };

  /// Reads them in two calls, however many there are. Fails as database_call.h says.
  [[nodiscard]] static YearOverview Load(std::span<const Currency> currencies, int year);

  [[nodiscard]] int Year() const { return year_; }
  /// In the order of the currencies.
  [[nodiscard]] const std::vector<Calendar>& Calendars() const { return calendars_; }
  /// What the day's rule is called; a text that names the number when the database has no such rule.
  [[nodiscard]] std::string NameOf(const almanac::MarkedDay& day) const;

 private:
  YearOverview(int year, almanac::RuleDirectory rules) : year_(year), rules_(std::move(rules)) {}

  int year_;
  almanac::RuleDirectory rules_;
  std::vector<Calendar> calendars_;
};

}  // namespace ferrowind::planning
