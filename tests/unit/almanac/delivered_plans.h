#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/almanac/date_table.h"
#include "ferrowind/almanac/rule_book.h"
#include "ferrowind/almanac/year_plan.h"

/// The delivered books and their plans, for tests that compare them with published lists.
namespace ferrowind::testing {

/// All delivered tables, read once.
[[nodiscard]] const almanac::DateTables& DeliveredDateTables();

/// The delivered book of a currency ("EUR"), read once; throws when there is none or it is no book.
[[nodiscard]] const almanac::RuleBook& DeliveredBook(std::string_view currency);

[[nodiscard]] almanac::YearPlan DeliveredPlan(std::string_view currency, int year);

/// The days of a plan that are closed though the book's weekdays leave them open, as "2026-04-03 Good
/// Friday", ascending. Throws when the plan is incomplete.
[[nodiscard]] std::vector<std::string> WeekdayHolidays(std::string_view currency, int year);

/// The same as "04-03", for lists that have no names or other ones.
[[nodiscard]] std::vector<std::string> WeekdayHolidayDates(std::string_view currency, int year);

/// The days that a book opens though its weekdays close them, as "2026-02-14 Working Saturday"; throws as
/// above.
[[nodiscard]] std::vector<std::string> WorkingWeekendDays(std::string_view currency, int year);

}  // namespace ferrowind::testing
