#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ferrowind/almanac/date_table.h"
#include "ferrowind/almanac/rule_book.h"
#include "ferrowind/planning/book_shelf.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::planning {

/// A holiday on one date, of no year but its own.
struct DatedHoliday {
  platform::Date date;
  std::string name;
  almanac::RuleKind kind = almanac::RuleKind::kPoint;
};

/// Enters holidays in the rule books of the calling thread's database as dates of their own, since otherwise
/// plans and the board would know better than whoever has closed the days.
class BookDates {
 public:
  /// `tables` must outlive this.
  explicit BookDates(const almanac::DateTables& tables) : tables_(tables) {}

  /// Appends the holidays to the book of the currency as it was when this entered the first ones, so that
  /// nothing that somebody has entered before is lost. Nothing when it is done, else why it is not, without a
  /// full stop. Precondition: the currency was not given before.
  [[nodiscard]] std::optional<std::string> Enter(const Currency& currency,
                                                 const std::vector<DatedHoliday>& holidays);

 private:
  const almanac::DateTables& tables_;
  std::optional<BookShelf> shelf_;
};

}  // namespace ferrowind::planning
