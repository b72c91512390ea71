#include "ferrowind/almanac/base_dates.h"

#include <algorithm>

#include "ferrowind/almanac/prepared_base.h"

namespace ferrowind::almanac {

std::vector<platform::Date> BaseDates(const DateExpression& expression, int year, const DateTables& tables) {
  const PreparedBase base(expression, tables);
  std::vector<platform::Date> dates;
  if (!base.Knows(year)) return dates;
  const YearsAround years(year);
  base.ForEach(years, years.FirstDayOf(year), years.FirstDayOf(year + 1) - 1,
               [&dates](std::int32_t day) { dates.push_back(platform::Date::FromSerial(day)); });
  std::sort(dates.begin(), dates.end());
  dates.erase(std::unique(dates.begin(), dates.end()), dates.end());
  return dates;
}

bool HasBaseDates(const DateExpression& expression, const DateTables& tables) {
  const PreparedBase base(expression, tables);
  const auto [first, last] = base.PossibleYears();
  for (int year = first; year <= last; ++year) {
    const YearsAround years(year);
    bool is_found = false;
    base.ForEach(years, years.FirstDayOf(year), years.FirstDayOf(year + 1) - 1,
                 [&is_found](std::int32_t) { is_found = true; });
    if (is_found) return true;
  }
  return false;
}

}  // namespace ferrowind::almanac
