#pragma once

#include <cstddef>
#include <cstdint>
#include <map>

#include "ferrowind/almanac/date_table.h"
#include "ferrowind/almanac/review.h"
#include "ferrowind/almanac/rule_directory.h"
#include "ferrowind/planning/currency_list.h"

namespace ferrowind::planning {

/// What a database holds, as the almanac judges it.
struct DatabaseContent {
  CurrencyList currencies;
  almanac::RuleDirectory rules;
  /// Those that have a book or a calendar, by number. One that the dictionary lacks has its number for a
  /// code.
  std::map<std::int32_t, almanac::ReviewedCurrency> judged;
  /// How many calendars there are.
  std::size_t calendars = 0;
};

/// Reads the whole content of the calling thread's database; fails as database_call.h says. `tables` are
/// those that planning will know.
[[nodiscard]] DatabaseContent LoadContent(const almanac::DateTables& tables);

}  // namespace ferrowind::planning
