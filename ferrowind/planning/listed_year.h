#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "ferrowind/exchange/icalendar_format.h"
#include "ferrowind/exchange/list_format.h"
#include "ferrowind/exchange/listed_day.h"
#include "ferrowind/exchange/year_list.h"
#include "ferrowind/planning/year_planner.h"
#include "ferrowind/planning/year_preparation.h"

/// Calendars of the calling thread's database and lists of days of other people. All fail as database_call.h
/// says.
namespace ferrowind::planning {

/// A calendar beside a list.
struct ListedYear {
  /// The plan is what the list says; must not outlive the planner.
  std::unique_ptr<YearPreparation> preparation;
  /// How many days stay under another name than the list's.
  std::size_t other_names = 0;
  /// For people, a sentence without a full stop each.
  std::vector<std::string> remarks;
};

/// Matches `list` with the calendar of its year as list_book.h says; `source` is what the list is called.
/// Fails where the currency is no money in that year, too.
[[nodiscard]] ListedYear PrepareListed(const YearPlanner& planner, const Currency& currency,
                                       const exchange::YearList& list, const std::string& source,
                                       bool takes_names);

/// The closed days of calendars but those of weekends, or `with_all` their weekends and their working days by
/// exception, too; by currencies and then by years. One that does not exist is a `platform::Failure`: no day
/// of it is known to be open.
[[nodiscard]] exchange::DayList ListCalendars(const std::vector<Currency>& currencies,
                                              const exchange::WantedYears& years, bool with_all);

/// That of the database, which a list in the format `format` has to tell; the first one of all where it has
/// not. It is the newest entry of the history, which may concern any of the days: a rule that is renamed is
/// in none of the calendars' own entries.
[[nodiscard]] exchange::Revision RevisionFor(exchange::ListFormat format);

}  // namespace ferrowind::planning
