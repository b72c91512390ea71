#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/almanac/date_table.h"
#include "ferrowind/almanac/rule_book.h"

/// The rule books of the calling thread's database. All fail as database_call.h says.
namespace ferrowind::planning {

/// A book as it stands in the database.
struct StoredBook {
  /// The currency's number.
  std::int32_t currency = 0;
  /// Of this content; what `StoreBook` expects.
  std::string fingerprint;
  /// Nothing when a rule of it cannot be read.
  std::optional<almanac::RuleBook> book;
  /// What is wrong with it, a sentence without a full stop for each fault; at least one without a book. By a
  /// book with faults nothing can be planned.
  std::vector<std::string> faults;
};

/// All books, by currency. `tables` are those that planning will know.
[[nodiscard]] std::vector<StoredBook> LoadBooks(const almanac::DateTables& tables);

/// The book of the currency `id` whose code is `code`, or nothing when it has none.
[[nodiscard]] std::optional<StoredBook> LoadBook(std::int32_t id, const std::string& code,
                                                 const almanac::DateTables& tables);

/// Puts `book` in place of the one that has the fingerprint `expected`, which is empty when there is none. A
/// `Refusal` when the database holds another one by now.
void StoreBook(std::int32_t id, const std::string& code, const std::string& expected,
               const almanac::RuleBook& book);

/// Removes the book that has the fingerprint `expected`; otherwise as `StoreBook`.
void RemoveBook(std::int32_t id, const std::string& code, const std::string& expected);

}  // namespace ferrowind::planning
