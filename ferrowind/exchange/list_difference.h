#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/almanac/calendar_content.h"
#include "ferrowind/almanac/rule_directory.h"
#include "ferrowind/exchange/year_list.h"

namespace ferrowind::exchange {

/// A day that is closed on one side and open on the other.
struct ListDifference {
  platform::Date date;
  /// What the calendar calls it: the name of its rule, an exception's too; nothing for an ordinary working
  /// day.
  std::optional<std::string> calendar;
  /// What the list calls it, which may be nothing; no text when the list does not name it.
  std::optional<std::string> listed;
  /// Whether the list has it closed, and the calendar open.
  bool is_missing = false;
  /// Of the list; 0 when it does not name the day.
  std::size_t line = 0;
};

/// The days on which `list` and the calendar do not agree, ascending. Names do not count. Neither do weekends
/// that the list leaves out and the holidays on them, unless the list names days of that weekday
/// (`YearList::ListsWeekday`); nor half days. Weekends are the days of the calendar with a weekday rule, and
/// all days of a weekday that is closed every week (weekends.h).
[[nodiscard]] std::vector<ListDifference> DifferencesOf(const YearList& list,
                                                        const almanac::CalendarContent& calendar,
                                                        const almanac::RuleDirectory& rules);

}  // namespace ferrowind::exchange
