#include "host/delivery/first_years.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

#include "ferrowind/planning/book_store.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/history_store.h"
#include "ferrowind/platform/values/json_value.h"

#include "host/delivery/delivered_books.h"
#include "host/delivery/delivered_tables.h"

namespace ferrowind::host {
namespace {

/// The delivered book of `code`, if `book` is that but for the year.
const almanac::RuleBook* DeliveredAs(const almanac::RuleBook& book, const std::string& code,
                                     const std::vector<almanac::NamedBook>& delivered) {
  const auto found = std::find_if(delivered.begin(), delivered.end(),
                                  [&](const almanac::NamedBook& named) { return named.name == code; });
  if (found == delivered.end()) return nullptr;
  almanac::RuleBook with_year = book;
  with_year.since = found->book.since;
  return with_year == found->book ? &found->book : nullptr;
}

/// Whether the call could say since when the book holds. The history names every parameter, also one without
/// a value.
bool CouldSayFirstYear(const planning::HistoryEntry& entry) {
  if (entry.procedure != "CldIUBook") return false;
  const auto parameters = platform::ReadJson(entry.parameters);
  return parameters && parameters->Find("FromYear") != nullptr;
}

/// Whether somebody has stored a book of the currency since books say when they hold: what it says is meant.
bool WasStoredSince(std::int32_t currency) {
  constexpr std::int32_t kPage = 1000;
  std::optional<std::int32_t> before;
  while (true) {
    planning::HistoryFilter filter;
    filter.currency = currency;
    const auto page = planning::LoadHistory(filter, before, kPage);
    if (std::any_of(page.entries.begin(), page.entries.end(), CouldSayFirstYear)) return true;
    if (!page.has_older) return false;
    before = page.entries.back().id;
  }
}

/// A book that is as delivered but for the year.
struct YearlessBook {
  planning::Currency currency;
  std::string fingerprint;
  const almanac::RuleBook* with_year;
};

struct BooksBesideDelivered {
  std::vector<YearlessBook> yearless;
  std::vector<std::string> others;
};

BooksBesideDelivered Sort(const std::vector<almanac::NamedBook>& delivered) {
  const auto currencies = planning::CurrencyList::Load();
  BooksBesideDelivered sorted;
  for (const planning::StoredBook& stored : planning::LoadBooks(DeliveredDateTables())) {
    const planning::Currency* const currency = currencies.Find(stored.currency);
    if (currency == nullptr || (stored.book && stored.book->since)) continue;
    const auto* const book = stored.book ? DeliveredAs(*stored.book, currency->code, delivered) : nullptr;
    if (book == nullptr) {
      sorted.others.push_back(currency->code);
    } else if (!WasStoredSince(currency->id)) {
      sorted.yearless.push_back({*currency, stored.fingerprint, book});
    }
  }
  return sorted;
}

}  // namespace

std::vector<std::string> BooksWithoutFirstYear() {
  const std::vector<almanac::NamedBook> delivered = DeliveredBooks();
  std::vector<std::string> codes;
  for (const YearlessBook& book : Sort(delivered).yearless) codes.push_back(book.currency.code);
  std::sort(codes.begin(), codes.end());
  return codes;
}

FirstYears GiveFirstYears() {
  const std::vector<almanac::NamedBook> delivered = DeliveredBooks();
  BooksBesideDelivered sorted = Sort(delivered);
  for (const YearlessBook& book : sorted.yearless) {
    planning::StoreBook(book.currency.id, book.currency.code, book.fingerprint, *book.with_year);
  }
  return {sorted.yearless.size(), std::move(sorted.others)};
}

}  // namespace ferrowind::host
