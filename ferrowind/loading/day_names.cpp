#include "ferrowind/loading/day_names.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <system_error>

namespace ferrowind::loading {
namespace {

/// The number that stands behind `position` commas; 0, which no rule has, when there is none.
std::int32_t NumberAt(std::string_view numbers, std::ptrdiff_t position) {
  for (; position > 0; --position) {
    const std::size_t comma = numbers.find(',');
    if (comma == std::string_view::npos) return 0;
    numbers.remove_prefix(comma + 1);
  }
  std::int32_t number = 0;
  const auto read = std::from_chars(numbers.data(), numbers.data() + numbers.size(), number);
  return read.ec == std::errc() ? number : 0;
}

}  // namespace

void DayNames::AddYear(const std::string& code, int year, std::string days, std::string rules) {
  years_[{code, year}] = {std::move(days), std::move(rules)};
}

void DayNames::AddRule(std::int32_t id, std::string name) { rules_[id] = std::move(name); }

std::string DayNames::Of(std::string_view code, std::chrono::sys_days day) const {
  const std::chrono::year year = std::chrono::year_month_day(day).year();
  const auto found = years_.find({std::string(code), static_cast<int>(year)});
  if (found == years_.end()) return {};
  const auto& [days, rules] = found->second;
  const auto day_of_year = (day - std::chrono::sys_days(year / 1 / 1)).count();
  if (day_of_year >= static_cast<std::ptrdiff_t>(days.size())) return {};
  const auto place = days.begin() + day_of_year;
  if (*place != '1') return {};
  const auto rule = rules_.find(NumberAt(rules, std::count(days.begin(), place, '1')));
  return rule != rules_.end() ? rule->second : std::string();
}

}  // namespace ferrowind::loading
