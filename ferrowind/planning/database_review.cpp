#include "ferrowind/planning/database_review.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "ferrowind/almanac/review.h"

namespace ferrowind::planning {

std::optional<almanac::FindingLevel> DatabaseReview::Worst() const {
  if (findings.empty()) return std::nullopt;
  return findings.front().level;
}

DatabaseReview ReviewContent(const DatabaseContent& content, const CurrencyReviewer& reviewer) {
  DatabaseReview review;
  if (content.calendars == 0) {
    // Nobody reviews an empty database on purpose: a monitor was given a wrong one.
    review.findings.push_back({almanac::FindingLevel::kError,
                               almanac::FindingSubject::kNoCalendar,
                               {},
                               {},
                               {},
                               platform::Phrase::Of("There is no calendar.")});
  }
  review.calendars = content.calendars;
  review.currencies = content.written.size();
  for (const auto& [id, currency] : content.written) {
    auto findings = reviewer(id, currency);
    std::move(findings.begin(), findings.end(), std::back_inserter(review.findings));
  }
  std::stable_sort(review.findings.begin(), review.findings.end(), almanac::ComesBefore);
  return review;
}

DatabaseReview ReviewDatabase(const almanac::DateTables& tables, const platform::Date& today,
                              std::optional<int> further_years) {
  const DatabaseContent content = LoadContent();
  const almanac::RuleDirectory rules = content.ReadRules();
  const auto horizon = almanac::ReviewHorizon::Of(today, further_years);
  return ReviewContent(content, [&](std::int32_t /*currency_id*/, const WrittenCurrency& currency) {
    return almanac::ReviewCurrency(currency.Read(tables), rules, tables, horizon);
  });
}

}  // namespace ferrowind::planning
