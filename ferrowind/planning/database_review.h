#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "ferrowind/almanac/date_table.h"
#include "ferrowind/almanac/finding.h"
#include "ferrowind/almanac/review.h"
#include "ferrowind/planning/database_content.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::planning {

/// What is wrong or odd about the calendars of a database.
struct DatabaseReview {
  /// Worst first (`almanac::ComesBefore`).
  std::vector<almanac::Finding> findings;
  /// How many calendars were looked at.
  std::size_t calendars = 0;
  /// How many currencies have a book or a calendar.
  std::size_t currencies = 0;

  /// The level of the worst finding, or nothing when there is none.
  [[nodiscard]] std::optional<almanac::FindingLevel> Worst() const;
};

/// Reviews a currency of that number.
using CurrencyReviewer =
    std::function<std::vector<almanac::Finding>(std::int32_t currency_id, const WrittenCurrency&)>;

/// What `reviewer` finds about the currencies of `content`, each asked for once, in the order of the numbers.
[[nodiscard]] DatabaseReview ReviewContent(const DatabaseContent& content, const CurrencyReviewer& reviewer);

/// Reviews the content of the calling thread's database by `almanac::ReviewHorizon::Of`. Reads only; fails as
/// database_call.h says.
[[nodiscard]] DatabaseReview ReviewDatabase(const almanac::DateTables& tables, const platform::Date& today,
                                            std::optional<int> further_years);

}  // namespace ferrowind::planning
