#include "ferrowind/planning/database_content.h"

#include <string>
#include <utility>
#include <vector>

#include "ferrowind/planning/book_store.h"
#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/database_call.h"

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

DatabaseContent LoadContent(const almanac::DateTables& tables) {
  const auto shared = ShareConnections();
  StoredRules stored = LoadRules();
  ReviewedCurrencies judged;
  AddCalendars(stored.calendars, LoadMarkedDays(kFirstCalendarYear, kLastCalendarYear), judged);
  AddBooks(LoadBooks(tables), judged);
  CurrencyList currencies = CurrencyList::Load();
  AddNames(currencies, judged);
  return {std::move(currencies), almanac::RuleDirectory(std::move(stored.rules)), std::move(judged),
          stored.calendars.size()};
}

}  // namespace ferrowind::planning
