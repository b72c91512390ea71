#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/almanac/date_table.h"
#include "ferrowind/almanac/rule_book.h"
#include "ferrowind/platform/values/record_set.h"

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

/// A book as `CldGetBook` and `CldGetContent` give it, not read yet.
class WrittenBook {
 public:
  /// The currency's number.
  [[nodiscard]] std::int32_t Currency() const;
  /// Appends what tells it from any other book of the same procedure.
  void AppendText(std::string& text) const;
  /// `tables` are those that planning will know. The book has no fingerprint when `CldGetContent` gave it.
  [[nodiscard]] StoredBook Read(const almanac::DateTables& tables) const;

 private:
  using Records = std::shared_ptr<const platform::RecordSet>;
  friend std::vector<WrittenBook> BooksIn(const Records& heads, const Records& rules);
  WrittenBook(Records heads, Records rules, std::size_t head, std::size_t first_rule, std::size_t last_rule)
      : heads_(std::move(heads)),
        rules_(std::move(rules)),
        head_(head),
        first_rule_(first_rule),
        last_rule_(last_rule) {}

  Records heads_;
  Records rules_;
  /// Positions in them; `last_rule_` is behind the last rule.
  std::size_t head_;
  std::size_t first_rule_;
  std::size_t last_rule_;
};

/// The books of a procedure's two record sets, none of them null, which are ordered by currency.
[[nodiscard]] std::vector<WrittenBook> BooksIn(const std::shared_ptr<const platform::RecordSet>& heads,
                                               const std::shared_ptr<const platform::RecordSet>& rules);

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
