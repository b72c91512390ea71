#include "tests/unit/almanac/delivered_plans.h"

#include <functional>
#include <map>
#include <stdexcept>
#include <variant>

#include "ferrowind/almanac/book_text.h"
#include "ferrowind/almanac/planner.h"

#include "database/seed/delivered_books.h"

namespace ferrowind::testing {
namespace {

using almanac::PlannedDay;
using almanac::Planner;
using almanac::RuleBook;
using almanac::RuleKind;
using almanac::YearPlan;

const Planner& DeliveredPlanner(std::string_view currency) {
  static const auto planners = [] {
    std::map<std::string, Planner, std::less<>> made;
    for (const embedded::DeliveredText& book : embedded::DeliveredBooks()) {
      made.emplace(book.name, Planner(almanac::ReadBook(book.text), DeliveredDateTables()));
    }
    return made;
  }();
  const auto found = planners.find(currency);
  if (found == planners.end()) throw std::runtime_error("no delivered book " + std::string(currency));
  return found->second;
}

YearPlan CompletePlan(std::string_view currency, int year) {
  YearPlan plan = DeliveredPlan(currency, year);
  if (!plan.Unknown().empty()) throw std::runtime_error(plan.Incomplete().front().InEnglish());
  return plan;
}

/// Whether the book closes the weekday of the day in the plan's year.
bool IsWeekend(const YearPlan& plan, const platform::Date& date) {
  for (const almanac::BookRule& rule : plan.Book().rules) {
    if (rule.kind != RuleKind::kWeekday || !rule.expression.years.Include(plan.Year())) continue;
    if (std::get<almanac::EveryWeekday>(rule.expression.anchor).weekday == date.Weekday()) return true;
  }
  return false;
}

std::string Line(const YearPlan& plan, const PlannedDay& day) {
  return plan.DateOf(day).ToIso() + ' ' + plan.NameOf(day);
}

}  // namespace

const almanac::DateTables& DeliveredDateTables() {
  static const auto tables = [] {
    almanac::DateTables read;
    for (const embedded::DeliveredText& table : embedded::DeliveredTables()) {
      read.Add(almanac::ReadDateTable(std::string(table.name), table.text));
    }
    return read;
  }();
  return tables;
}

const RuleBook& DeliveredBook(std::string_view currency) { return DeliveredPlanner(currency).Book(); }

YearPlan DeliveredPlan(std::string_view currency, int year) { return DeliveredPlanner(currency).Plan(year); }

std::vector<std::string> WeekdayHolidays(std::string_view currency, int year) {
  const YearPlan plan = CompletePlan(currency, year);
  std::vector<std::string> holidays;
  for (const PlannedDay& day : plan.Days()) {
    if (plan.KindOf(day) == RuleKind::kWorkingDay || IsWeekend(plan, plan.DateOf(day))) continue;
    holidays.push_back(Line(plan, day));
  }
  return holidays;
}

std::vector<std::string> WeekdayHolidayDates(std::string_view currency, int year) {
  std::vector<std::string> dates = WeekdayHolidays(currency, year);
  for (std::string& date : dates) date = date.substr(5, 5);
  return dates;
}

std::vector<std::string> WorkingWeekendDays(std::string_view currency, int year) {
  const YearPlan plan = CompletePlan(currency, year);
  std::vector<std::string> days;
  for (const PlannedDay& day : plan.Days()) {
    if (plan.KindOf(day) != RuleKind::kWorkingDay || !IsWeekend(plan, plan.DateOf(day))) continue;
    days.push_back(Line(plan, day));
  }
  return days;
}

}  // namespace ferrowind::testing
