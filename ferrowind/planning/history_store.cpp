#include "ferrowind/planning/history_store.h"

#include <utility>

#include "ferrowind/planning/database_call.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/planning/later_changes.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::planning {
namespace {

using platform::RecordSet;
using platform::Value;
using return_value::kChangedSince;

constexpr std::int32_t kNoSuchEntry = 7;

std::optional<std::int32_t> NumberOrNothing(const Value& value) {
  if (value.IsEmpty()) return std::nullopt;
  return platform::ToInt32(value);
}

HistoryEntry EntryIn(const RecordSet& rows) {
  HistoryEntry entry;
  entry.id = platform::ToInt32(rows["EntryID"]);
  entry.moment = platform::ToText(rows["Moment"]);
  entry.user = platform::ToText(rows["UserName"]);
  entry.procedure = platform::ToText(rows["ProcedureName"]);
  entry.currency = NumberOrNothing(rows["ID1"]);
  entry.year = NumberOrNothing(rows["Year1"]);
  entry.parameters = platform::ToTextOrEmpty(rows["Parameters"]);
  entry.rows_changed = platform::ToInt32(rows["RowsChanged"]);
  entry.rule = platform::ToTextOrEmpty(rows["Name1"]);
  entry.keeps_rows = platform::ToInt32(rows["KeepsRows"]) != 0;
  return entry;
}

std::vector<HistoryEntry> EntriesIn(RecordSet& rows) {
  std::vector<HistoryEntry> entries;
  for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) entries.push_back(EntryIn(rows));
  return entries;
}

PastCalendar LoadPast(const std::string& what, const SourceValues& parameters) {
  const CallAnswer answer =
      CallDatabase(what, "CldGetAsOf", parameters, 1, {return_value::kUnknownCalendar, kChangedSince});
  if (answer.return_value == return_value::kUnknownCalendar) return {PastCalendar::State::kNotThere, {}};
  if (answer.return_value == kChangedSince) return {PastCalendar::State::kNotKept, {}};
  PastCalendar calendar{PastCalendar::State::kThere, {}};
  RecordSet& rows = *answer.record_sets.front();
  for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
    calendar.days.push_back({platform::ToDate(rows["ODate"]), platform::ToInt32(rows["TID1"]),
                             NumberOrNothing(rows["ID2"]), platform::ToTextOrEmpty(rows["Name1"]),
                             platform::ToTextOrEmpty(rows["Comment"])});
  }
  return calendar;
}

}  // namespace

HistoryPage LoadHistory(const HistoryFilter& filter, std::optional<std::int32_t> before, std::int32_t count) {
  SourceValues parameters;
  if (filter.currency) parameters.Add("ID1", *filter.currency);
  if (filter.year) parameters.Add("Year1", *filter.year);
  if (filter.day_of_year) parameters.Add("Day1", *filter.day_of_year);
  if (filter.user) parameters.Add("UserName", *filter.user);
  if (before) parameters.Add("Before", *before);
  // One more tells whether there is any.
  parameters.Add("Count", count + 1);
  const CallAnswer answer = CallDatabase(InWords("Reading the history"), "CldGetHistory", parameters, 2);
  HistoryPage page;
  page.entries = EntriesIn(*answer.record_sets[0]);
  page.has_older = page.entries.size() > static_cast<std::size_t>(count);
  if (page.has_older) page.entries.pop_back();
  RecordSet& asker = *answer.record_sets[1];
  asker.MoveFirst();
  if (!asker.Eof()) page.asker = platform::ToTextOrEmpty(asker["UserName"]);
  return page;
}

std::optional<DetailedEntry> LoadEntry(std::int32_t id) {
  SourceValues parameters;
  parameters.Add("EntryID", id);
  const CallAnswer answer = CallDatabase(InWords("Reading the entry %1 of the history", {std::to_string(id)}),
                                         "CldGetHistory", parameters, 3);
  std::vector<HistoryEntry> entries = EntriesIn(*answer.record_sets[0]);
  if (entries.empty()) return std::nullopt;
  DetailedEntry detailed{std::move(entries.front()), {}};
  RecordSet& rows = *answer.record_sets[2];
  for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
    detailed.rows.push_back({platform::ToText(rows["TableName"]), NumberOrNothing(rows["ID1"]),
                             NumberOrNothing(rows["ID2"]), NumberOrNothing(rows["Position"]),
                             platform::ToTextOrEmpty(rows["OldRow"]),
                             platform::ToTextOrEmpty(rows["NewRow"])});
  }
  return detailed;
}

std::optional<HistoryEntry> FindEntry(std::int32_t id) {
  auto detailed = LoadEntry(id);
  if (!detailed) return std::nullopt;
  return std::move(detailed->entry);
}

PastCalendar LoadCalendarBehind(std::int32_t currency, std::int32_t year, std::int32_t entry) {
  SourceValues parameters;
  parameters.Add("ID1", currency);
  parameters.Add("Year1", year);
  parameters.Add("EntryID", entry);
  return LoadPast(InWords("Reading a calendar of %1 as the entry %2 of the history left it",
                          {std::to_string(year), std::to_string(entry)}),
                  parameters);
}

PastCalendar LoadCalendarAsOf(std::int32_t currency, std::int32_t year, const std::string& moment) {
  SourceValues parameters;
  parameters.Add("ID1", currency);
  parameters.Add("Year1", year);
  parameters.Add("Moment", moment);
  return LoadPast(InWords("Reading a calendar of %1 as of %2", {std::to_string(year), moment}), parameters);
}

UndoOutcome UndoEntry(const HistoryEntry& entry, const std::string& what) {
  using Kind = UndoOutcome::Kind;
  SourceValues parameters;
  parameters.Add("EntryID", entry.id);
  const CallAnswer answer =
      CallDatabase(what.empty() ? InWords("Undoing the entry %1", {std::to_string(entry.id)}) : what,
                   "CldUndo", parameters, 0, {kNoSuchEntry, kChangedSince});
  if (answer.return_value == return_value::kDone) return {Kind::kDone};
  if (answer.return_value == kNoSuchEntry) return {Kind::kNoSuchEntry};
  LaterChanges later = LoadLaterChanges(entry);
  return {Kind::kRefused, std::move(later.newest), std::move(later.undoer)};
}

}  // namespace ferrowind::planning
