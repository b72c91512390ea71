#include "ferrowind/planning/shown_calendar.h"

#include <algorithm>

#include "ferrowind/planning/database_call.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/json_value.h"

namespace ferrowind::planning {
namespace {

using platform::RecordSet;
using platform::Value;

/// Among so many of the newest calls the one that a reader missed is looked for.
constexpr std::int32_t kNewestCalls = 100;

bool HasRule(const RecordSet& days, const std::string& rule) {
  const auto field = days.FindField("ID2");
  if (!field) return false;
  for (std::size_t position = 0; position < days.RowCount(); ++position) {
    const Value& id = days.Cell(days.BookmarkAt(position), *field);
    if (!id.IsEmpty() && platform::ToText(id) == rule) return true;
  }
  return false;
}

/// A call for a rule shows in calendars that have the rule.
bool IsForARuleOf(const RecordSet& days, const HistoryEntry& entry) {
  if (entry.currency || entry.year) return false;
  const auto parameters = platform::ReadJson(entry.parameters);
  const auto* const rule = parameters ? parameters->Find("ID2") : nullptr;
  // An undoing does not name the rule.
  return rule == nullptr || HasRule(days, rule->text);
}

std::optional<HistoryEntry> NewestCallFor(const RecordSet& days, std::int32_t currency, std::int32_t year) {
  for (const HistoryEntry& entry : LoadHistory({}, std::nullopt, kNewestCalls).entries) {
    if ((entry.currency == currency && entry.year == year) || IsForARuleOf(days, entry)) return entry;
  }
  const auto page = LoadHistory({.currency = currency, .year = year}, std::nullopt, 1);
  if (page.entries.empty()) return std::nullopt;
  return page.entries.front();
}

}  // namespace

CalendarNews NewsSince(const RecordSet& days, std::int32_t currency, std::int32_t year) {
  SourceValues parameters;
  parameters.Add("ID1", currency);
  parameters.Add("Year1", year);
  const CallAnswer answer = CallDatabase(InWords("Reading whether a calendar was changed"), "CldGetMain",
                                         parameters, 1, {return_value::kUnknownCalendar});
  CalendarNews news;
  if (answer.return_value == return_value::kUnknownCalendar) {
    news.kind = CalendarNews::Kind::kRemoved;
  } else if (!answer.record_sets.front()->ShowsTheSameAs(days)) {
    news.kind = CalendarNews::Kind::kChanged;
  } else {
    return news;
  }
  news.call = NewestCallFor(days, currency, year);
  return news;
}

}  // namespace ferrowind::planning
