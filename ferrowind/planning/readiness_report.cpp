#include "ferrowind/planning/readiness_report.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "ferrowind/almanac/review.h"
#include "ferrowind/planning/database_content.h"

namespace ferrowind::planning {
namespace {

using almanac::Readiness;
using almanac::ReviewHorizon;
using almanac::YearReadiness;

/// Whether what stands in the calendar could not be traded on.
bool IsUnprepared(const YearReadiness& year) {
  return year.readiness == Readiness::kNotPrepared || year.readiness == Readiness::kWeekendsOnly;
}

}  // namespace

bool ReadinessReport::IsUrgent(const YearReadiness& year) const {
  const bool is_due =
      year.year == today.Year() || (year.year == NextYear() && ReviewHorizon::NextYearIsUrgent(today));
  return is_due && IsUnprepared(year);
}

int ReadinessReport::CountUrgent(int year) const {
  return static_cast<int>(
      std::count_if(currencies.begin(), currencies.end(), [&](const CurrencyReadiness& currency) {
        return std::any_of(currency.years.begin(), currency.years.end(),
                           [&](const YearReadiness& of) { return of.year == year && IsUrgent(of); });
      }));
}

std::vector<CalendarKey> ReadinessReport::ToPrepare(int year) const {
  std::vector<CalendarKey> calendars;
  for (const CurrencyReadiness& currency : currencies) {
    for (const YearReadiness& of : currency.years) {
      const bool changes = IsUnprepared(of) || of.readiness == Readiness::kDiffers;
      if (of.year == year && of.can_be_planned && changes) calendars.emplace_back(currency.currency.id, year);
    }
  }
  return calendars;
}

ReadinessReport ReadReadiness(const almanac::DateTables& tables, const platform::Date& today) {
  const DatabaseContent content = LoadContent(tables);
  const auto horizon = ReviewHorizon::Of(today, {});
  ReadinessReport report{today, {}, {}};
  report.review = ReviewContent(content, [&](std::int32_t id, const almanac::ReviewedCurrency& currency) {
    auto judgement = almanac::JudgeCurrency(currency, content.rules, tables, horizon, report.FirstYear(),
                                            report.LastYear());
    report.currencies.push_back({content.currencies.FindOrNumber(id), std::move(judgement.years)});
    return std::move(judgement.findings);
  });
  std::sort(report.currencies.begin(), report.currencies.end(),
            [](const auto& left, const auto& right) { return left.currency.code < right.currency.code; });
  return report;
}

}  // namespace ferrowind::planning
