#pragma once

#include <string>

#include "ferrowind/almanac/book_text.h"
#include "ferrowind/almanac/rule_book.h"

namespace ferrowind::testing {

/// A book of these rules, written as lines of the text of a book.
inline almanac::RuleBook BookOf(const std::string& rules) {
  return almanac::ReadBook("publisher The Bank\ndocument Its holidays\n" + rules);
}

/// The same with Saturdays and Sundays closed by its first two rules.
inline almanac::RuleBook BookWithWeekends(const std::string& rules) {
  return BookOf("weekday | Saturday | weekday Saturday\nweekday | Sunday | weekday Sunday\n" + rules);
}

}  // namespace ferrowind::testing
