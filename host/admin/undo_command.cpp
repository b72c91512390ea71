#include "host/admin/undo_command.h"

#include <optional>
#include <ostream>

#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/database_call.h"
#include "ferrowind/platform/values/conversion.h"

#include "host/session/procedure_session.h"

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
  /// "USD/2028"; empty when the call was for no calendar.
  std::string calendar;
};

/// The newest entry, or the newest one before the entry `before`.
std::optional<Entry> NewestEntry(std::optional<std::int32_t> before) {
  SourceValues parameters;
  if (before) parameters.Add("Before", *before);
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
    const auto currencies = planning::CurrencyList::Load();
    const auto* const currency = currencies.Find(platform::ToInt32(rows["ID1"]));
    const std::string code = currency != nullptr ? currency->code : platform::ToText(rows["ID1"]);
    entry.calendar = code + "/" + platform::ToText(rows["Year1"]);
  }
  return entry;
}

std::string Described(const Entry& entry) {
  return "The entry " + std::to_string(entry.id) + " (" + entry.procedure +
         (entry.calendar.empty() ? "" : " for " + entry.calendar) + ", " + entry.moment + ", by " +
         entry.user + ")";
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
  Entry undone;
  std::optional<Entry> newest;
  RunWithDatabase(engines, url, [&] {
    undone = RequireEntry(entry);
    SourceValues parameters;
    parameters.Add("EntryID", entry);
    const auto answer = planning::CallDatabase("Undoing the entry " + std::to_string(entry), "CldUndo",
                                               parameters, 0, {kCannotBeUndone});
    if (answer.return_value == kCannotBeUndone) {
      throw Failure(platform::failure_number::kInvalidArgument,
                    Described(undone) +
                        " cannot be undone: a later call changed the same, or the history does not keep what "
                        "was there before");
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
