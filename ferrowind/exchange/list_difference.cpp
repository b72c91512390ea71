#include "ferrowind/exchange/list_difference.h"

#include <map>
#include <utility>

#include "ferrowind/exchange/weekends.h"

namespace ferrowind::exchange {

using almanac::MarkedDay;
using platform::Date;

std::vector<ListDifference> DifferencesOf(const YearList& list, const almanac::CalendarContent& calendar,
                                          const almanac::RuleDirectory& rules) {
  std::map<int, const MarkedDay*> marked;
  for (const MarkedDay& day : calendar.days) marked[day.day_of_year] = &day;
  const Weekends weekends(calendar);
  std::vector<ListDifference> differences;
  const Date new_year(list.year, 1, 1);
  for (int i = 1; i <= platform::DaysInYear(list.year); ++i) {
    const Date date = new_year.AddDays(i - 1);
    const auto found = marked.find(i);
    const MarkedDay* const now = found == marked.end() ? nullptr : found->second;
    const ListedDay* const listed = list.Find(date);
    if (listed != nullptr && listed->kind == ListedKind::kHalfDay) continue;
    const bool is_closed = now != nullptr && now->IsClosed();
    const bool should_be = listed != nullptr && listed->kind != ListedKind::kWorkingDay;
    if (is_closed == should_be) continue;
    const bool is_weekend =
        is_closed && (now->kind == almanac::RuleKind::kWeekday || weekends.Include(date.Weekday()));
    if (listed == nullptr && is_weekend && !list.ListsWeekday(date.Weekday())) continue;
    ListDifference difference{date, {}, {}, should_be, 0};
    if (now != nullptr) {
      const almanac::KnownRule* const rule = rules.Find(now->rule);
      difference.calendar = rule != nullptr ? rule->name : "Rule " + std::to_string(now->rule);
    }
    if (listed != nullptr) {
      difference.listed = listed->name;
      difference.line = listed->line;
    }
    differences.push_back(std::move(difference));
  }
  return differences;
}

}  // namespace ferrowind::exchange
