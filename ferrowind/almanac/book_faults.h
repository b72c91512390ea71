#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "ferrowind/almanac/date_table.h"
#include "ferrowind/almanac/rule_book.h"
#include "ferrowind/platform/values/phrase.h"

namespace ferrowind::almanac {

/// What is wrong with a book, a sentence for each fault; none when a year can be planned by it. A name has
/// one kind, and as a celebration one date, in a book and all books of a database: there a name and a kind
/// are one rule. Several rules of a book may share a name (a holiday whose rule has changed). `lines` are
/// those of a text in which the rules stand; without them a rule is told by its number.
[[nodiscard]] std::vector<platform::Phrase> FaultsOf(const RuleBook& book, const DateTables& tables,
                                                     const std::vector<std::size_t>& lines = {});

struct NamedBook {
  /// Of the currency, such as "EUR".
  std::string name;
  RuleBook book;
  /// As `FaultsOf` takes them.
  std::vector<std::size_t> lines = {};
};

/// What is wrong between `books`, and between them and `others`: a sentence for each name that has one kind
/// or date in one and another in another. The faults of the single books are not among them, nor those of
/// names that `books` do not use.
[[nodiscard]] std::vector<platform::Phrase> FaultsBetween(const std::vector<NamedBook>& books,
                                                          const std::vector<NamedBook>& others = {});

}  // namespace ferrowind::almanac
