#include "host/admin/undo_command.h"

#include <optional>
#include <ostream>
#include <utility>

#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/database_call.h"
#include "ferrowind/platform/values/conversion.h"

#include "host/admin/database_content.h"
#include "host/admin/history_arguments.h"

namespace ferrowind::host {
namespace {

using platform::Failure;
using platform::Value;

constexpr std::int32_t kCannotBeUndone = 9;

/// What the history says of a call.
struct Entry {
  std::int32_t id = 0;
  std::string moment;
  std::string user;
  std::string procedure;
  /// The numbers of the currency and of the year, and "USD/2028"; nothing when the call was for no calendar.
  std::optional<std::pair<std::int32_t, std::int32_t>> key;
  std::string calendar;
};

/// The newest of the entries that `parameters` ask for.
std::optional<Entry> NewestOf(SourceValues parameters) {
  parameters.Add("Count", 1);
  const auto answer = planning::CallDatabase("Reading the history", "CldGetHistory", parameters, 1);
  platform::RecordSet& rows = *answer.record_sets.front();
  rows.MoveFirst();
  if (rows.Eof()) return std::nullopt;
  Entry entry;
  entry.id = platform::ToInt32(rows["EntryID"]);
  entry.moment = platform::ToText(rows["Moment"]);
  entry.user = platform::ToText(rows["UserName"]);
  entry.procedure = platform::ToText(rows["ProcedureName"]);
  if (!rows["ID1"].IsEmpty() && !rows["Year1"].IsEmpty()) {
    entry.key.emplace(platform::ToInt32(rows["ID1"]), platform::ToInt32(rows["Year1"]));
    const auto currencies = planning::CurrencyList::Load();
    const auto* const currency = currencies.Find(entry.key->first);
    const std::string code = currency != nullptr ? currency->code : platform::ToText(rows["ID1"]);
    entry.calendar = code + "/" + platform::ToText(rows["Year1"]);
  }
  return entry;
}

/// The newest entry, or the newest one before the entry `before`.
std::optional<Entry> NewestEntry(std::optional<std::int32_t> before) {
  SourceValues parameters;
  if (before) parameters.Add("Before", *before);
  return NewestOf(std::move(parameters));
}

/// The newest entry of the calendar of `entry`, if it is a later one.
std::optional<Entry> LaterEntryOfCalendar(const Entry& entry) {
  if (!entry.key) return std::nullopt;
  SourceValues parameters;
  parameters.Add("ID1", entry.key->first);
  parameters.Add("Year1", entry.key->second);
  auto newest = NewestOf(std::move(parameters));
  if (newest && newest->id <= entry.id) newest.reset();
  return newest;
}

std::string Described(const Entry& entry) {
  return "The entry " + std::to_string(entry.id) + " (" + entry.procedure +
         (entry.calendar.empty() ? "" : " for " + entry.calendar) + ", " + entry.moment + ", by " +
         entry.user + ")";
}

/// The procedure does not tell which later call it was, so what may be it is named.
std::string WhyItStays(const Entry& entry) {
  const std::string why =
      Described(entry) +
      " cannot be undone: a later call changed the same, or the history does not keep what was there before";
  const std::optional<Entry> later = LaterEntryOfCalendar(entry);
  if (!later) return why;
  std::string name = Described(*later);
  name[0] = 't';
  return why + ". The newest call for " + later->calendar + " is " + name + "; undo that first";
}

Entry RequireEntry(std::int32_t id) {
  const std::optional<Entry> entry = id > 0 && id < INT32_MAX ? NewestEntry(id + 1) : std::optional<Entry>();
  if (!entry || entry->id != id) {
    throw Failure(platform::failure_number::kInvalidArgument,
                  "The history has no entry " + std::to_string(id));
  }
  return *entry;
}

}  // namespace

ExitStatus UndoCommand::Run(const platform::EngineRegistry& engines, std::ostream& out) const {
  const std::int32_t number = ReadEntryNumber(entry);
  Entry undone;
  std::optional<Entry> newest;
  RunWithCalendars(engines, url, [&] {
    undone = RequireEntry(number);
    SourceValues parameters;
    parameters.Add("EntryID", number);
    const auto answer = planning::CallDatabase("Undoing the entry " + std::to_string(number), "CldUndo",
                                               parameters, 0, {kCannotBeUndone});
    if (answer.return_value == kCannotBeUndone) {
      throw Failure(platform::failure_number::kInvalidArgument, WhyItStays(undone));
    }
    newest = NewestEntry(std::nullopt);
  });
  out << Described(undone) << " is undone.\n";
  if (newest && newest->procedure == "CldUndo") {
    out << "That is the entry " << newest->id << ", which can be undone itself.\n";
  }
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
