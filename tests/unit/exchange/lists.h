#pragma once

#include <string>
#include <vector>

#include "ferrowind/exchange/listed_day.h"
#include "ferrowind/exchange/year_list.h"

#include "tests/support/failure_of.h"

/// Lists for tests, and what is said of them.
namespace ferrowind::exchange {

/// What the reading of a list fails with.
template <typename Reading>
std::string RefusalOf(const Reading& reading) {
  return testing::FailureOf([&] { (void)reading(); }).Description();
}

/// "2027-01-01 holiday New Year's Day (EUR), line 3" of each day.
inline std::vector<std::string> Told(const DayList& list) {
  std::vector<std::string> told;
  for (const ListedDay& day : list.days) {
    told.push_back(day.date.ToIso() + ' ' + std::string(TextOf(day.kind)) +
                   (day.name.empty() ? "" : ' ' + day.name) +
                   (day.currency.empty() ? "" : " (" + day.currency + ")") + ", " + LineText(day.line));
  }
  return told;
}

inline ListedDay Day(int year, int month, int day, const std::string& name = {},
                     ListedKind kind = ListedKind::kHoliday) {
  return {{year, month, day}, name, kind, {}, 0};
}

/// All days of that weekday, 1 Sunday to 7 Saturday.
inline std::vector<ListedDay> DaysOfWeek(int year, int weekday) {
  std::vector<ListedDay> days;
  const platform::Date new_year(year, 1, 1);
  for (int i = 0; i < platform::DaysInYear(year); ++i) {
    const platform::Date date = new_year.AddDays(i);
    if (date.Weekday() == weekday) days.push_back({date, {}, ListedKind::kWeekend, {}, 0});
  }
  return days;
}

}  // namespace ferrowind::exchange
