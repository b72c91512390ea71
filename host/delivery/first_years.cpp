#include "host/delivery/first_years.h"

#include <algorithm>

#include "ferrowind/planning/book_store.h"
#include "ferrowind/planning/currency_list.h"

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

}  // namespace

FirstYears GiveFirstYears() {
  const std::vector<almanac::NamedBook> delivered = DeliveredBooks();
  const auto currencies = planning::CurrencyList::Load();
  FirstYears years;
  for (const planning::StoredBook& stored : planning::LoadBooks(DeliveredDateTables())) {
    const planning::Currency* const currency = currencies.Find(stored.currency);
    if (currency == nullptr || (stored.book && stored.book->since)) continue;
    const auto* const book = stored.book ? DeliveredAs(*stored.book, currency->code, delivered) : nullptr;
    if (book == nullptr) {
      years.others.push_back(currency->code);
      continue;
    }
    planning::StoreBook(currency->id, currency->code, stored.fingerprint, *book);
    ++years.given;
  }
  return years;
}

}  // namespace ferrowind::host
