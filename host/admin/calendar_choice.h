#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/year_planner.h"

#include "host/admin/plan_arguments.h"

namespace ferrowind::host {

/// The calendar of a currency in a year.
struct ChosenCalendar {
  const planning::Currency* currency = nullptr;
  int year = 0;
};

/// The calendars that a person means who writes `currency`, in any letter case, and `years`: those of one
/// currency, or where `planning::MeansAllCurrencies` those of all that have a book, by currency and then by
/// year. Of all, the years are left out after a currency's last day as money and before its book holds, which
/// `errors` tells. A currency that is not known, and a database without any book, are a `platform::Failure`.
/// The currencies are those of `planner`.
[[nodiscard]] std::vector<ChosenCalendar> ChooseCalendars(const planning::YearPlanner& planner,
                                                          const std::string& currency, const YearRange& years,
                                                          std::ostream& errors);

}  // namespace ferrowind::host
