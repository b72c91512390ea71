#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/almanac/date_table.h"
#include "ferrowind/almanac/planner.h"
#include "ferrowind/almanac/rule_book.h"
#include "ferrowind/almanac/rule_dates.h"
#include "ferrowind/planning/book_shelf.h"
#include "ferrowind/planning/currency_list.h"

namespace ferrowind::planning {

/// A rule while it is written: its expression may be none yet.
struct RuleDraft {
  std::string name;
  almanac::RuleKind kind = almanac::RuleKind::kPoint;
  std::string expression;
  std::string comment;
  std::string moved_name;

  bool operator==(const RuleDraft&) const = default;
};

/// How a changed book changes the plan of a year.
struct PlanChange {
  int year = 0;
  platform::Date day;
  /// The names of rules; nothing for an ordinary working day.
  std::optional<std::string> before;
  std::optional<std::string> after;
};

/// The rule book of a currency while it is written. Nothing is stored before `Store`.
class BookDraft {
 public:
  /// The book of the currency as it stands in the calling thread's database, or an empty one when it has
  /// none. A stored book that cannot be read is a failure that says why; otherwise fails as database_call.h
  /// says. `tables` must outlive this.
  BookDraft(Currency currency, const almanac::DateTables& tables);

  [[nodiscard]] const Currency& Owner() const { return currency_; }
  [[nodiscard]] const std::string& Publisher() const { return head_.publisher; }
  [[nodiscard]] const std::string& Document() const { return head_.document; }
  /// The first year that the book holds in, as it is written: no year yet, or "" for all years.
  [[nodiscard]] const std::string& Since() const { return since_; }
  [[nodiscard]] const std::vector<RuleDraft>& Rules() const { return rules_; }

  void SetPublisher(const std::string& publisher) { head_.publisher = publisher; }
  void SetDocument(const std::string& document) { head_.document = document; }
  void SetSince(const std::string& since) { since_ = since; }
  /// Inserts the rule in front of the one at `position`, which may be the end. Positions count from 0.
  void Insert(std::size_t position, RuleDraft rule);
  void Change(std::size_t position, RuleDraft rule);
  void Remove(std::size_t position);
  /// Swaps the rule with the one behind it.
  void MoveDown(std::size_t position);

  /// Whether the database has a book of the currency.
  [[nodiscard]] bool IsStored() const { return stored_.has_value(); }
  /// Whether there is anything to store.
  [[nodiscard]] bool IsChanged() const;
  /// Why the book cannot be stored: sentences without a full stop; empty when it can be.
  [[nodiscard]] std::vector<std::string> Faults() const;
  /// Why the expression of that rule is none, or nothing when it is one.
  [[nodiscard]] std::optional<std::string> FaultOfExpression(std::size_t position) const;
  /// What the rule does in `count` years from `first_year` on, beside the other rules whose expressions can
  /// be read; empty while its own cannot.
  [[nodiscard]] std::vector<almanac::RuleYear> YearsOf(std::size_t position, int first_year, int count) const;
  /// The days of `count` years from `first_year` on that the plan of this book has otherwise than that of the
  /// stored one, in the years that both tell of. Only of a draft without faults.
  [[nodiscard]] std::vector<PlanChange> Changes(int first_year, int count) const;
  /// Those of `count` years from `first_year` on that the stored book tells of and this one does not. Only of
  /// a draft without faults.
  [[nodiscard]] std::vector<int> YearsLost(int first_year, int count) const;
  /// Those of `count` years from `first_year` on that this book tells of and the stored one does not. Only of
  /// a draft without faults.
  [[nodiscard]] std::vector<int> YearsGained(int first_year, int count) const;

  /// Puts the draft in place of the stored book; a draft without a publisher, a document and rules removes
  /// it. Only of one without faults. A `Refusal` when somebody else has changed the book since it was read:
  /// nothing is lost, the draft stays as it is. Once it is stored, the book is to be read anew; where that
  /// fails, or the answer was lost, the draft can be stored again.
  void Store();

 private:
  /// The rules that can be read, and where the one at `position` stands among them.
  struct Readable {
    almanac::RuleBook book;
    std::optional<std::size_t> position;
  };
  [[nodiscard]] Readable ReadableBook(std::size_t position) const;
  [[nodiscard]] almanac::Planner StoredPlanner() const;
  [[nodiscard]] almanac::Planner DraftPlanner() const;
  /// Sends the draft, once more when what it was sent before is there already, although nobody heard so.
  void SendAfterLostAnswers();
  void Send() const;
  [[nodiscard]] bool IsEmpty() const;
  [[nodiscard]] bool HasFaultySince() const;

  Currency currency_;
  const almanac::DateTables& tables_;
  BookShelf shelf_;
  /// Without rules and without the first year.
  almanac::RuleBook head_;
  std::string since_;
  std::vector<RuleDraft> rules_;
  /// As it is stored; nothing when the currency has none.
  std::optional<almanac::RuleBook> stored_;
  std::string fingerprint_;
  /// What `Store` was called with last, whether it stands in the database or not.
  std::optional<almanac::RuleBook> sent_;
};

}  // namespace ferrowind::planning
