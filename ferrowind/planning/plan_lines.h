#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/almanac/plan_action.h"
#include "ferrowind/planning/planned_calendar.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::planning {

/// A line of what is shown to somebody who is about to make calendars as planned.
struct PlanLine {
  enum class Kind : std::uint8_t {
    /// A calendar cannot be planned; the line says why.
    kNotPlanned,
    /// The plan of a calendar lacks dates; the line says which.
    kIncomplete,
    /// A calendar as a whole.
    kCalendar,
    kDay,
    /// Whether the rule book gets the days that a list closes and that it leaves open.
    kBook,
  };

  Kind kind = Kind::kDay;
  /// The position of its calendar in the list.
  std::size_t calendar = 0;
  /// Tells it from all other lines, and is the same when the plan is made anew: "978/2028/105" for a day.
  std::string key;
  /// Whether it stands among those that somebody should look at first: what cannot be done, what the plan
  /// does not know, and days that a person has made otherwise than planned.
  bool is_conflict = false;
  /// Nothing where there is no choice; of a calendar whether any of its days is taken.
  std::optional<bool> is_taken;
  /// For operators: of a day why it should be so, without a full stop; of others a sentence or a count.
  std::string why;

  // Of a day only:
  std::optional<platform::Date> date;
  almanac::PlanAction action = almanac::PlanAction::kKeep;
  /// The database would refuse it; `why` says the reason, too.
  bool is_blocked = false;
  /// The names of rules; nothing for an ordinary working day.
  std::optional<std::string> now;
  std::optional<std::string> should;
};

/// Which lines are shown.
struct PlanLineFilter {
  /// The position of the only calendar; nothing for all.
  std::optional<std::size_t> calendar;
  /// Also the days that stay as they are, and the weekends of calendars that have none, which are only
  /// counted otherwise.
  bool shows_all = false;
};

/// The lines of the calendars: conflicts first, the gravest before; then calendar by calendar, each with its
/// days by date. When there are several, a line for the whole stands before the days of each.
[[nodiscard]] std::vector<PlanLine> LinesOf(const std::vector<PlannedCalendar>& calendars,
                                            const PlanLineFilter& filter);

/// What happens to the calendar: "a new calendar, 112 days, 104 of them weekends", "2 days, but not 1 day
/// that is left out", "as planned", "as in the list". Precondition: it is planned.
[[nodiscard]] std::string CountOf(const PlannedCalendar& calendar);

}  // namespace ferrowind::planning
