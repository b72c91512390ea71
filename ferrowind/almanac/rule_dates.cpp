#include "ferrowind/almanac/rule_dates.h"

#include <algorithm>

#include "ferrowind/almanac/base_dates.h"
#include "ferrowind/almanac/prepared_base.h"

namespace ferrowind::almanac {
namespace {

RuleYear YearOfRule(const YearPlan& plan, std::size_t rule, const DateTables& tables) {
  const DateExpression& expression = plan.Book().rules[rule].expression;
  RuleYear year{plan.Year(), {}, PreparedBase(expression, tables).Knows(plan.Year())};
  for (const PlannedDay& day : plan.Days()) {
    if (day.rule == rule) year.dates.push_back({plan.DateOf(day), true, plan.WhyOf(day.day_of_year)});
  }
  for (const platform::Date& date : BaseDates(expression, plan.Year(), tables)) {
    const PlannedDay* const holder = plan.Find(date.DayOfYear());
    if (holder == nullptr || holder->rule != rule)
      year.dates.push_back({date, false, plan.WhyOf(date.DayOfYear())});
  }
  std::sort(year.dates.begin(), year.dates.end(),
            [](const RuleDate& left, const RuleDate& right) { return left.date < right.date; });
  return year;
}

}  // namespace

std::vector<RuleYear> YearsOfRule(const Planner& planner, std::size_t rule, const DateTables& tables,
                                  int first_year, int count) {
  std::vector<RuleYear> years;
  for (int year = first_year; year < first_year + count; ++year) {
    if (planner.Reaches(year)) years.push_back(YearOfRule(planner.Plan(year), rule, tables));
  }
  return years;
}

}  // namespace ferrowind::almanac
