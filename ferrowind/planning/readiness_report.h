#pragma once

#include <vector>

#include "ferrowind/almanac/date_table.h"
#include "ferrowind/almanac/year_readiness.h"
#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/database_review.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::planning {

/// How a currency that has a calendar or a book stands in the years of a report.
struct CurrencyReadiness {
  /// One that the dictionary lacks has its number for a code, and no name.
  Currency currency;
  /// One for each year of the report, ascending.
  std::vector<almanac::YearReadiness> years;
};

/// How far the calendars of a database are prepared: those of the last year, the running one and the next
/// two, and what a review of all calendars finds.
struct ReadinessReport {
  platform::Date today;
  /// By code.
  std::vector<CurrencyReadiness> currencies;
  DatabaseReview review;

  [[nodiscard]] int FirstYear() const { return today.Year() - 1; }
  [[nodiscard]] int NextYear() const { return today.Year() + 1; }
  [[nodiscard]] int LastYear() const { return today.Year() + 2; }

  /// Whether an operator has to be told aloud that the currency is not prepared for the year: it is money
  /// then, nothing or no more than weekends stands in its calendar, and the year runs or is about to
  /// (`almanac::ReviewHorizon::NextYearIsUrgent`).
  [[nodiscard]] bool IsUrgent(const almanac::YearReadiness& year) const;
  /// The number of currencies for which that holds in that year.
  [[nodiscard]] int CountUrgent(int year) const;
  /// The calendars of `year` that plans would change or make, by code.
  [[nodiscard]] std::vector<CalendarKey> ToPrepare(int year) const;
};

/// Reads the calling thread's database, whose today is `today`. Changes nothing; fails as database_call.h
/// says.
[[nodiscard]] ReadinessReport ReadReadiness(const almanac::DateTables& tables, const platform::Date& today);

}  // namespace ferrowind::planning
