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

DatabaseReview ReviewContent(const DatabaseContent& content, const almanac::DateTables& tables,
                             const almanac::ReviewHorizon& horizon) {
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
  review.currencies = content.judged.size();
  for (const auto& [id, currency] : content.judged) {
    auto findings = almanac::ReviewCurrency(currency, content.rules, tables, horizon);
    std::move(findings.begin(), findings.end(), std::back_inserter(review.findings));
  }
  std::stable_sort(review.findings.begin(), review.findings.end(), almanac::ComesBefore);
  return review;
}

DatabaseReview ReviewDatabase(const almanac::DateTables& tables, const platform::Date& today,
                              std::optional<int> further_years) {
  return ReviewContent(LoadContent(tables), tables, almanac::ReviewHorizon::Of(today, further_years));
}

}  // namespace ferrowind::planning
