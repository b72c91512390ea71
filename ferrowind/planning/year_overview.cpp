#include "ferrowind/planning/year_overview.h"

#include <algorithm>
#include <utility>

#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/database_call.h"
#include "ferrowind/planning/in_words.h"

namespace ferrowind::planning {

YearOverview YearOverview::Load(std::span<const Currency> currencies, int year) {
  const auto shared = ShareConnections();
  StoredRules rules = LoadRules();
  std::vector<std::pair<CalendarKey, almanac::CalendarContent>> contents = LoadMarkedDays(year, year);
  YearOverview overview(year, almanac::RuleDirectory(std::move(rules.rules)));
  for (const Currency& currency : currencies) {
    const CalendarKey key(currency.id, year);
    Calendar& calendar = overview.calendars_.emplace_back();
    calendar.currency = currency;
    calendar.exists = std::binary_search(rules.calendars.begin(), rules.calendars.end(), key);
    calendar.content.year = year;
    const auto found =
        std::find_if(contents.begin(), contents.end(), [&](const auto& entry) { return entry.first == key; });
    // A calendar that was made between the two calls has marked days already.
    if (found == contents.end()) continue;
    calendar.exists = true;
    calendar.content = found->second;
    calendar.readiness = almanac::ReadinessByClosedDays(calendar.content);
  }
  return overview;
}

std::string YearOverview::NameOf(const almanac::MarkedDay& day) const {
  const almanac::KnownRule* rule = rules_.Find(day.rule);
  return rule == nullptr ? InWords("rule %1", {std::to_string(day.rule)}) : rule->name;
}

}  // namespace ferrowind::planning
