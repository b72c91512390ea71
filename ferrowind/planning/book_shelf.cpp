#include "ferrowind/planning/book_shelf.h"

#include <algorithm>

#include "ferrowind/almanac/book_lengths.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::planning {
namespace {

using almanac::NamedBook;

void Append(const std::vector<platform::Phrase>& more, std::vector<std::string>& faults) {
  for (const platform::Phrase& fault : more) faults.push_back(InWords(fault));
}

}  // namespace

BookShelf::BookShelf(const almanac::DateTables& tables)
    : tables_(tables), currencies_(CurrencyList::Load()), books_(LoadBooks(tables)) {}

const StoredBook* BookShelf::Find(const Currency& currency) const {
  const auto found = std::find_if(books_.begin(), books_.end(),
                                  [&](const StoredBook& stored) { return stored.currency == currency.id; });
  return found == books_.end() ? nullptr : &*found;
}

const StoredBook& BookShelf::Get(const Currency& currency) const {
  const StoredBook* const stored = Find(currency);
  if (stored == nullptr) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            InWords("%1 has no rule book", {UnmistakableCode(currency)}));
  }
  return *stored;
}

std::vector<Currency> BookShelf::WithBooks() const {
  std::vector<Currency> currencies;
  for (const StoredBook& stored : books_) currencies.push_back(CurrencyOf(stored));
  std::sort(currencies.begin(), currencies.end(),
            [](const Currency& left, const Currency& right) { return left.code < right.code; });
  return currencies;
}

std::vector<std::string> BookShelf::FaultsWith(const std::vector<PlacedBook>& placed) const {
  std::vector<std::string> faults;
  std::set<std::int32_t> ids;
  std::vector<NamedBook> named;
  for (const auto& [currency, book, lines, source] : placed) {
    ids.insert(currency.id);
    named.push_back({currency.code, book, lines});
    for (const platform::Phrase& fault : almanac::FaultsOf(book, tables_, lines)) {
      faults.push_back((source.empty() ? currency.code : source) + ": " + InWords(fault));
    }
    for (const platform::Phrase& fault : almanac::LengthFaultsOf(book, lines)) {
      faults.push_back((source.empty() ? currency.code : source) + ": " + InWords(fault));
    }
  }
  Append(almanac::FaultsBetween(named, Readable(ids)), faults);
  return faults;
}

std::vector<std::string> BookShelf::FaultsOf(const std::vector<Currency>& currencies) const {
  std::vector<std::string> faults;
  std::set<std::int32_t> ids;
  std::vector<NamedBook> looked_at;
  for (const Currency& currency : currencies) {
    ids.insert(currency.id);
    const StoredBook& stored = Get(currency);
    for (const std::string& fault : stored.faults) faults.push_back(currency.code + ": " + fault);
    if (stored.book) looked_at.push_back({currency.code, *stored.book});
  }
  Append(almanac::FaultsBetween(looked_at, Readable(ids)), faults);
  return faults;
}

std::vector<NamedBook> BookShelf::Readable(const std::set<std::int32_t>& without) const {
  std::vector<NamedBook> books;
  for (const StoredBook& stored : books_) {
    if (stored.book && !without.contains(stored.currency)) {
      books.push_back({CurrencyOf(stored).code, *stored.book});
    }
  }
  return books;
}

Currency BookShelf::CurrencyOf(const StoredBook& stored) const {
  if (const Currency* const currency = currencies_.Find(stored.currency)) return *currency;
  // Only a broken database has a book of no currency.
  Currency unknown;
  unknown.id = stored.currency;
  unknown.code = std::to_string(stored.currency);
  return unknown;
}

}  // namespace ferrowind::planning
