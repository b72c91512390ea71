#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ferrowind/almanac/date_table.h"
#include "ferrowind/almanac/review.h"
#include "ferrowind/almanac/rule_directory.h"
#include "ferrowind/planning/book_store.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/platform/values/date.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::planning {

/// A currency's book and calendars as the database gives them, not read yet.
struct WrittenCurrency {
  /// Of two currencies that are read alike the texts are the same; of any others they differ.
  [[nodiscard]] std::string Text() const;
  /// A failure when the database gives days in no form that is known.
  [[nodiscard]] almanac::ReviewedCurrency Read(const almanac::DateTables& tables) const;

  /// One that the dictionary lacks has its number for a code.
  std::string code = {};
  /// What sentences for people call it (`UnmistakableCode`).
  std::string called = {};
  std::optional<platform::Date> last_day = {};
  std::optional<WrittenBook> book = {};
  /// Each year with its days (days_text.h), ascending. The texts live as long as the content.
  std::vector<std::pair<int, std::string_view>> calendars = {};
};

/// What a database holds, as it gives it.
struct DatabaseContent {
  CurrencyList currencies;
  /// Those that have a book or a calendar, by number.
  std::map<std::int32_t, WrittenCurrency> written;
  /// How many calendars there are.
  std::size_t calendars = 0;
  /// Never null, as the next: the rules, and what `written` refers to.
  std::shared_ptr<const platform::RecordSet> rules;
  std::shared_ptr<const platform::RecordSet> days;

  [[nodiscard]] almanac::RuleDirectory ReadRules() const;
};

/// Takes the whole content of the calling thread's database in one call; fails as database_call.h says.
[[nodiscard]] DatabaseContent LoadContent();

}  // namespace ferrowind::planning
