#include "host/admin/book_shelf.h"

#include <algorithm>

#include "ferrowind/platform/values/failure.h"

#include "host/delivery/delivered_tables.h"

namespace ferrowind::host {
namespace {

using almanac::NamedBook;
using planning::Currency;
using planning::StoredBook;

template <typename Range, typename Entry>
bool Contains(const Range& range, const Entry& entry) {
  return std::find(range.begin(), range.end(), entry) != range.end();
}

/// The faults between `books` and `others` that are not between `others` alone.
void AddFaultsBetween(std::vector<NamedBook> books, const std::vector<NamedBook>& others,
                      std::vector<std::string>& faults) {
  const std::vector<std::string> known = almanac::FaultsBetween(others);
  books.insert(books.end(), others.begin(), others.end());
  for (const std::string& fault : almanac::FaultsBetween(books)) {
    if (!Contains(known, fault)) faults.push_back(fault);
  }
}

}  // namespace

BookShelf::BookShelf()
    : currencies_(planning::CurrencyList::Load()), books_(planning::LoadBooks(DeliveredDateTables())) {}

const StoredBook* BookShelf::Find(const Currency& currency) const {
  const auto found = std::find_if(books_.begin(), books_.end(),
                                  [&](const StoredBook& stored) { return stored.currency == currency.id; });
  return found == books_.end() ? nullptr : &*found;
}

const StoredBook& BookShelf::Get(const Currency& currency) const {
  const StoredBook* const stored = Find(currency);
  if (stored == nullptr) {
    throw platform::Failure(platform::failure_number::kInvalidArgument, currency.code + " has no rule book");
  }
  return *stored;
}

std::vector<std::string> BookShelf::Codes() const {
  std::vector<std::string> codes;
  for (const StoredBook& stored : books_) codes.push_back(CodeOf(stored));
  std::sort(codes.begin(), codes.end());
  return codes;
}

std::vector<std::string> BookShelf::FaultsWith(const std::vector<NamedBook>& placed) const {
  std::vector<std::string> faults;
  std::vector<std::string> codes;
  for (const auto& [code, book] : placed) {
    codes.push_back(code);
    for (const std::string& fault : almanac::FaultsOf(book, DeliveredDateTables())) {
      faults.push_back(code + ": " + fault);
    }
  }
  AddFaultsBetween(placed, Readable(codes), faults);
  return faults;
}

std::vector<std::string> BookShelf::FaultsOf(const std::vector<std::string>& codes) const {
  std::vector<std::string> faults;
  std::vector<NamedBook> looked_at;
  for (const std::string& code : codes) {
    const StoredBook& stored = Get(currencies_.Named(code));
    for (const std::string& fault : stored.faults) faults.push_back(code + ": " + fault);
    if (stored.book) looked_at.push_back({code, *stored.book});
  }
  AddFaultsBetween(std::move(looked_at), Readable(codes), faults);
  return faults;
}

std::vector<NamedBook> BookShelf::Readable(const std::vector<std::string>& without) const {
  std::vector<NamedBook> books;
  for (const StoredBook& stored : books_) {
    std::string code = CodeOf(stored);
    if (stored.book && !Contains(without, code)) books.push_back({std::move(code), *stored.book});
  }
  return books;
}

std::string BookShelf::CodeOf(const StoredBook& stored) const {
  const Currency* const currency = currencies_.Find(stored.currency);
  return currency != nullptr ? currency->code : std::to_string(stored.currency);
}

}  // namespace ferrowind::host
