#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/almanac/calendar_content.h"
#include "ferrowind/almanac/comparison.h"
#include "ferrowind/almanac/date_table.h"
#include "ferrowind/almanac/finding.h"
#include "ferrowind/almanac/rule_book.h"
#include "ferrowind/almanac/rule_directory.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::almanac {

/// The years that must have calendars.
struct ReviewHorizon {
  int running_year = 0;
  int last_year = 0;

  /// From September on, when whoever has not prepared the next year is late.
  [[nodiscard]] static bool NextYearIsUrgent(const platform::Date& today);
  /// The year of `today` and `further_years` after it; without a number the next year and, from September on,
  /// the one after.
  [[nodiscard]] static ReviewHorizon Of(const platform::Date& today, std::optional<int> further_years);
};

/// A currency, with all that its calendars are reviewed by.
struct ReviewedCurrency {
  std::string code;
  /// Nothing when it has none that can be read.
  std::optional<RuleBook> book;
  /// Sentences, in words that follow on "The book of EUR".
  std::vector<std::string> book_faults;
  /// The last day as legal money; nothing while it is live.
  std::optional<platform::Date> last_day;
  /// By year, each once.
  std::vector<CalendarContent> calendars;
  /// What sentences call it; "" for its code.
  std::string called = {};
};

/// Is told of each calendar of a currency once, with its comparison with the plan of its year, which lives as
/// long as the call; null when no plan can be made of that year.
using ComparisonUse = std::function<void(const CalendarContent& calendar, const Comparison* comparison)>;

/// What is wrong or odd about the calendars of a currency, in no particular order. `use` is for whoever needs
/// the comparisons that it takes as well.
///
/// A calendar is judged by the plan of its year. Only days that no plan judges, for lack of a book that
/// holds in the year or of the dates of a rule, are judged by the other years of the currency: whether a
/// holiday stands on another weekday than ever before, or a celebration on another date than its rule says.
[[nodiscard]] std::vector<Finding> ReviewCurrency(const ReviewedCurrency& currency,
                                                  const RuleDirectory& rules, const DateTables& tables,
                                                  const ReviewHorizon& horizon,
                                                  const ComparisonUse& use = {});

}  // namespace ferrowind::almanac
