#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace ferrowind::host {

/// Before this version of the schema no book said since when it holds.
inline constexpr int kVersionOfFirstYears = 4;

/// What has become of the books of a database that was upgraded to that version.
struct FirstYears {
  /// How many books say since when they hold now: those that are the delivered ones otherwise.
  std::size_t given = 0;
  /// The codes of the currencies whose books are others, and tell of all years as before.
  std::vector<std::string> others;
};

/// The codes, ascending, of the currencies whose books `GiveFirstYears` would change now: none, unless an
/// upgrade was cut off behind its transaction. Fails as ferrowind/planning/database_call.h says.
[[nodiscard]] std::vector<std::string> BooksWithoutFirstYear();

/// Lets each book of the calling thread's database that is as delivered say since when it holds, too, unless
/// somebody has stored it without a year since books can say one. So it can be done again, and does what is
/// left where it was cut off. Fails as ferrowind/planning/database_call.h says; books that were changed
/// before stay so.
[[nodiscard]] FirstYears GiveFirstYears();

}  // namespace ferrowind::host
