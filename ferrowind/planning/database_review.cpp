#include "ferrowind/planning/database_review.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <map>
#include <utility>

#include "ferrowind/almanac/review.h"
#include "ferrowind/planning/book_store.h"
#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/currency_list.h"

namespace ferrowind::planning {
namespace {

using almanac::CalendarContent;
using almanac::ReviewedCurrency;

using ReviewedCurrencies = std::map<std::int32_t, ReviewedCurrency>;

void AddCalendars(const std::vector<CalendarKey>& calendars,
                  std::vector<std::pair<CalendarKey, CalendarContent>> contents,
                  ReviewedCurrencies& currencies) {
  auto content = contents.begin();
  for (const CalendarKey& key : calendars) {
    while (content != contents.end() && content->first < key) ++content;
    const bool has_days = content != contents.end() && content->first == key;
    currencies[key.first].calendars.push_back(has_days ? std::move(content->second)
                                                       : CalendarContent{key.second, {}});
  }
}

void AddBooks(std::vector<StoredBook> books, ReviewedCurrencies& currencies) {
  for (StoredBook& stored : books) {
    ReviewedCurrency& currency = currencies[stored.currency];
    if (stored.faults.empty()) currency.book = std::move(stored.book);
    currency.book_faults = std::move(stored.faults);
  }
}

void AddNames(const CurrencyList& list, ReviewedCurrencies& currencies) {
  for (auto& [id, currency] : currencies) {
    const Currency* const known = list.Find(id);
    currency.code = known != nullptr ? known->code : std::to_string(id);
    if (known != nullptr) currency.last_day = known->last_day;
  }
}

}  // namespace

std::optional<almanac::FindingLevel> DatabaseReview::Worst() const {
  if (findings.empty()) return std::nullopt;
  return findings.front().level;
}

DatabaseReview ReviewDatabase(const almanac::DateTables& tables, const platform::Date& today,
                              std::optional<int> further_years) {
  StoredRules stored = LoadRules();
  ReviewedCurrencies currencies;
  AddCalendars(stored.calendars, LoadMarkedDays(kFirstCalendarYear, kLastCalendarYear), currencies);
  AddBooks(LoadBooks(tables), currencies);
  AddNames(CurrencyList::Load(), currencies);

  const almanac::RuleDirectory rules(std::move(stored.rules));
  const auto horizon = almanac::ReviewHorizon::Of(today, further_years);
  DatabaseReview review;
  if (stored.calendars.empty()) {
    // Nobody reviews an empty database on purpose: a monitor was given a wrong one.
    review.findings.push_back({almanac::FindingLevel::kError,
                               almanac::FindingSubject::kNoCalendar,
                               {},
                               {},
                               {},
                               "There is no calendar."});
  }
  review.calendars = stored.calendars.size();
  review.currencies = currencies.size();
  for (const auto& [id, currency] : currencies) {
    auto findings = almanac::ReviewCurrency(currency, rules, tables, horizon);
    std::move(findings.begin(), findings.end(), std::back_inserter(review.findings));
  }
  std::stable_sort(review.findings.begin(), review.findings.end(), almanac::ComesBefore);
  return review;
}

}  // namespace ferrowind::planning
