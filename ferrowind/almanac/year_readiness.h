#pragma once

#include <cstdint>
#include <vector>

#include "ferrowind/almanac/calendar_content.h"
#include "ferrowind/almanac/date_table.h"
#include "ferrowind/almanac/finding.h"
#include "ferrowind/almanac/review.h"
#include "ferrowind/almanac/rule_directory.h"
#include "ferrowind/platform/values/phrase.h"

namespace ferrowind::almanac {

/// How far a year of a currency is prepared.
enum class Readiness : std::uint8_t {
  /// There is no calendar, or none of its days is closed.
  kNotPrepared,
  /// The only closed days are those of weekday rules, and nothing says that there are no others.
  kWeekendsOnly,
  /// Some days are not as planned.
  kDiffers,
  /// There are holidays, and no plan to tell whether they are the right ones.
  kNotCompared,
  /// As planned, as far as the dates are published.
  kPrepared,
  /// The currency is money no longer in that year.
  kEnded,
};

/// How far a calendar is prepared by its closed days alone: not prepared, weekends only or not compared.
[[nodiscard]] Readiness ReadinessByClosedDays(const CalendarContent& calendar);

/// What the calendar of a currency and a year is like beside its plan. The counts are 0 where there is no
/// plan.
struct YearReadiness {
  int year = 0;
  Readiness readiness = Readiness::kNotPrepared;
  bool has_calendar = false;
  /// Whether a plan can be made of the year: there is a book that can be used and tells of it, and the money
  /// has not ended.
  bool can_be_planned = false;
  /// Days that are not as planned.
  int differing_days = 0;
  /// Days that the plan closes and that are working days by exception, with a reason; not among the differing
  /// ones, since somebody has decided so.
  int excepted_days = 0;
  /// What the plan does not know and nobody has entered, a sentence without a full stop for each rule.
  std::vector<platform::Phrase> unpublished;
};

/// What is to be told of a currency.
struct CurrencyJudgement {
  /// As `ReviewCurrency` gives them.
  std::vector<Finding> findings = {};
  /// One for each year from the first to the last.
  std::vector<YearReadiness> years = {};
};

/// Reviews `currency` by `horizon`, and tells how it stands in the years from `first_year` to `last_year`.
/// Each calendar is compared with its plan once for both.
[[nodiscard]] CurrencyJudgement JudgeCurrency(const ReviewedCurrency& currency, const RuleDirectory& rules,
                                              const DateTables& tables, const ReviewHorizon& horizon,
                                              int first_year, int last_year);

}  // namespace ferrowind::almanac
