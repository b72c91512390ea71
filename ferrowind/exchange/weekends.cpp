#include "ferrowind/exchange/weekends.h"

namespace ferrowind::exchange {

using almanac::RuleKind;

Weekends::Weekends(const almanac::CalendarContent& calendar) {
  const platform::Date new_year(calendar.year, 1, 1);
  for (const almanac::MarkedDay& day : calendar.days) {
    if (day.kind == RuleKind::kWeekday) Count(new_year.AddDays(day.day_of_year - 1));
  }
}

Weekends::Weekends(const almanac::YearPlan& plan) {
  for (const almanac::PlannedDay& day : plan.Days()) {
    if (plan.KindOf(day) == RuleKind::kWeekday) Count(plan.DateOf(day));
  }
}

void Weekends::Count(const platform::Date& date) { ++days_.at(static_cast<std::size_t>(date.Weekday())); }

bool Weekends::Include(int weekday) const { return days_.at(static_cast<std::size_t>(weekday)) >= kEnough; }

}  // namespace ferrowind::exchange
