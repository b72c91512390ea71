#pragma once

#include <cstdint>
#include <map>
#include <string>
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

/// Makes reports of the calling thread's database, each from its whole content as it is then. What this has
/// judged before is not judged again: a currency whose calendars and book are to the letter what they were,
/// by the same rules and in the same years, has the same judgement.
class ReadinessReader {
 public:
  /// `tables` must outlive this object and stay as they are.
  explicit ReadinessReader(const almanac::DateTables& tables) : tables_(tables) {}
  ReadinessReader(const ReadinessReader&) = delete;
  ReadinessReader& operator=(const ReadinessReader&) = delete;

  /// Changes nothing in the database; fails as database_call.h says.
  [[nodiscard]] ReadinessReport Read(const platform::Date& today);

 private:
  struct Judged {
    /// `WrittenCurrency::Text`; empty when it has not been judged.
    std::string written = {};
    almanac::CurrencyJudgement judgement = {};
  };

  const almanac::DateTables& tables_;
  /// What all of `judged_` were judged by, beside themselves and the tables.
  std::string basis_;
  /// By the number of the currency.
  std::map<std::int32_t, Judged> judged_;
};

}  // namespace ferrowind::planning
