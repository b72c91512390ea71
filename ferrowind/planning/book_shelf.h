#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "ferrowind/almanac/book_faults.h"
#include "ferrowind/almanac/date_table.h"
#include "ferrowind/planning/book_store.h"
#include "ferrowind/planning/currency_list.h"

namespace ferrowind::planning {

/// A book that is to be a currency's.
struct PlacedBook {
  Currency currency;
  almanac::RuleBook book;
  /// Of a text the lines in which the rules stand, and what the text is called.
  std::vector<std::size_t> lines = {};
  std::string source = {};
};

/// The rule books of the calling thread's database as they were when this was made. All fail as
/// database_call.h says.
class BookShelf {
 public:
  /// `tables` are those that planning knows; they must outlive this.
  explicit BookShelf(const almanac::DateTables& tables);

  [[nodiscard]] const CurrencyList& Currencies() const { return currencies_; }
  /// Null when the currency has no book.
  [[nodiscard]] const StoredBook* Find(const Currency& currency) const;
  /// The same; no book is a failure that says so.
  [[nodiscard]] const StoredBook& Get(const Currency& currency) const;
  /// Those that have a book, ordered by code.
  [[nodiscard]] std::vector<Currency> WithBooks() const;

  /// What is wrong with the books `placed`, and would be wrong between them and the rest of the shelf, if
  /// they stood in it: sentences without a full stop, with the code of the book in front when the fault is
  /// its own.
  [[nodiscard]] std::vector<std::string> FaultsWith(const std::vector<PlacedBook>& placed) const;
  /// What is wrong with the stored books of these currencies, and between them and any other.
  [[nodiscard]] std::vector<std::string> FaultsOf(const std::vector<Currency>& currencies) const;

 private:
  /// Those that can be read, but for the ones of the currencies `without`.
  [[nodiscard]] std::vector<almanac::NamedBook> Readable(const std::set<std::int32_t>& without) const;
  [[nodiscard]] Currency CurrencyOf(const StoredBook& stored) const;

  const almanac::DateTables& tables_;
  CurrencyList currencies_;
  std::vector<StoredBook> books_;
};

}  // namespace ferrowind::planning
