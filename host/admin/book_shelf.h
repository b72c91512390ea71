#pragma once

#include <string>
#include <vector>

#include "ferrowind/almanac/book_faults.h"
#include "ferrowind/planning/book_store.h"
#include "ferrowind/planning/currency_list.h"

namespace ferrowind::host {

/// The rule books of the calling thread's database as they were when this was made. All fail as
/// ferrowind/planning/database_call.h says.
class BookShelf {
 public:
  BookShelf();

  [[nodiscard]] const planning::CurrencyList& Currencies() const { return currencies_; }
  /// Null when the currency has no book.
  [[nodiscard]] const planning::StoredBook* Find(const planning::Currency& currency) const;
  /// The same; no book is a failure that says so.
  [[nodiscard]] const planning::StoredBook& Get(const planning::Currency& currency) const;
  /// The codes of the currencies that have a book, in their order.
  [[nodiscard]] std::vector<std::string> Codes() const;

  /// What is wrong with the books `placed` and would be wrong between them and the rest of the shelf, if they
  /// stood in it: sentences without a full stop, each with the code of the book in front.
  [[nodiscard]] std::vector<std::string> FaultsWith(const std::vector<almanac::NamedBook>& placed) const;
  /// What is wrong with the stored books of these currencies, and between them and any other.
  [[nodiscard]] std::vector<std::string> FaultsOf(const std::vector<std::string>& codes) const;

 private:
  /// Those that can be read, but for the ones of the currencies `without`.
  [[nodiscard]] std::vector<almanac::NamedBook> Readable(const std::vector<std::string>& without) const;
  [[nodiscard]] std::string CodeOf(const planning::StoredBook& stored) const;

  planning::CurrencyList currencies_;
  std::vector<planning::StoredBook> books_;
};

}  // namespace ferrowind::host
