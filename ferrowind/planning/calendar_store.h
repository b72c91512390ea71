#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/almanac/calendar_content.h"
#include "ferrowind/almanac/rule_directory.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/platform/values/record_set.h"

/// The calendars and rules of the calling thread's database. All fail as database_call.h says.
namespace ferrowind::planning {

/// The years that a calendar can have.
inline constexpr int kFirstCalendarYear = 1900;
inline constexpr int kLastCalendarYear = 3000;

/// A calendar as it stands in the database.
struct StoredCalendar {
  bool exists = false;
  /// Of this content or an older one, so that a change since then is refused; empty when it does not exist.
  std::string fingerprint;
  almanac::CalendarContent content;
};

[[nodiscard]] StoredCalendar LoadCalendar(const Currency& currency, int year);

/// The content alone; nothing when the calendar does not exist, also where its currency is unknown or no
/// money in that year.
[[nodiscard]] std::optional<almanac::CalendarContent> LoadDays(const Currency& currency, int year);

/// A calendar's place: the number of its currency and its year.
using CalendarKey = std::pair<std::int32_t, int>;

struct StoredRules {
  /// Ordered.
  std::vector<CalendarKey> calendars;
  /// All, removed ones too.
  std::vector<almanac::KnownRule> rules;
};

/// The rules of a record set with the fields of rules that procedures give.
[[nodiscard]] std::vector<almanac::KnownRule> RulesIn(const platform::RecordSet& rows);

/// Which calendars there are, and the rules.
[[nodiscard]] StoredRules LoadRules();

/// The content of every calendar from `first_year` to `last_year` that has marked days, ordered by currency
/// and year.
[[nodiscard]] std::vector<std::pair<CalendarKey, almanac::CalendarContent>> LoadMarkedDays(int first_year,
                                                                                           int last_year);

}  // namespace ferrowind::planning
