#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "ferrowind/almanac/calendar_content.h"
#include "ferrowind/almanac/rule_book.h"
#include "ferrowind/almanac/rule_directory.h"
#include "ferrowind/almanac/year_plan.h"
#include "ferrowind/exchange/year_list.h"

/// How a published list becomes the plan of a year.
///
/// A list says which days are closed. It becomes a book of that one year with a rule for each day that shall
/// be marked, so that a list is compared, shown and applied as any plan is.
///
/// A day that the list closes and the calendar has closed keeps its rule, whatever the list calls it, unless
/// the list's names are asked for. Another one gets the rule that the plan of the currency has there, else
/// one of the list's name, else one that is called `kNameless`.
///
/// A day that the list leaves out is no closed day. Only weekends stay as they are, with the holidays on
/// them, as lists leave them out: days with a weekday rule, and closed days of a weekday that is closed every
/// week (weekends.h), unless the list names that weekday's days (`YearList::ListsWeekday`). A calendar
/// without weekends gets those of the plan of the currency.
///
/// A half day stays as it is, and is told. A working day of the list becomes one by exception, for the reason
/// that it gives.
namespace ferrowind::exchange {

/// What a closed day without a name is called when nothing else tells.
inline constexpr const char* kNameless = "Bank holiday";

/// With what a list is matched.
struct ListSurroundings {
  /// Of the list's year.
  const almanac::CalendarContent& now;
  const almanac::RuleDirectory& rules;
  /// What the currency's own book says of the year; null when nothing does.
  const almanac::YearPlan* planned = nullptr;
  /// Whether days that are closed already get the names of the list.
  bool takes_names = false;
};

struct ListBook {
  almanac::RuleBook book;
  /// How many days stay under another name than the list's.
  std::size_t other_names = 0;
  /// For people, a sentence without a full stop each.
  std::vector<std::string> remarks;
};

/// `source` is what the list is called in the book. A calendar whose weekends nothing tells is
/// a `ListError`, and so is a year that no plan reaches (`almanac::kLastYear`).
[[nodiscard]] ListBook BookOf(const YearList& list, const std::string& source,
                              const ListSurroundings& surroundings);

}  // namespace ferrowind::exchange
