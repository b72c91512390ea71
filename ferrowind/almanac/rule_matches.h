#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "ferrowind/almanac/rule_book.h"
#include "ferrowind/almanac/rule_directory.h"
#include "ferrowind/almanac/year_plan.h"

namespace ferrowind::almanac {

/// The rules of a database that have the names of a book's rules; looked up once for all years of the book.
class RuleMatches {
 public:
  /// `directory` must outlive the matches.
  RuleMatches(const RuleBook& book, const RuleDirectory& directory);

  [[nodiscard]] const RuleDirectory& Directory() const { return *directory_; }
  /// The rule of the name that `day` has in a plan of the book, whatever its kind and whether it is removed
  /// or not; for a planned working day the rule of exceptions. Null when the database has none.
  [[nodiscard]] const KnownRule* RuleOf(const PlannedDay& day) const;
  /// Whether the database's rule `rule` has one of the names of the book's rule at `book_rule`.
  [[nodiscard]] bool HasNameOf(std::size_t book_rule, std::int32_t rule) const;

 private:
  struct Match {
    const KnownRule* own = nullptr;
    const KnownRule* substitute = nullptr;
  };

  const RuleDirectory* directory_;
  std::vector<Match> matches_;
};

}  // namespace ferrowind::almanac
