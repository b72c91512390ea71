#include "host/admin/undo_command.h"

#include <optional>
#include <ostream>
#include <utility>

#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/history_store.h"
#include "ferrowind/platform/values/failure.h"

#include "host/admin/database_content.h"
#include "host/admin/history_arguments.h"
#include "host/admin/text_escapes.h"

namespace ferrowind::host {
namespace {

using planning::HistoryEntry;
using platform::Failure;

/// "USD/2028"; empty when the call was for no calendar.
std::string CalendarOf(const HistoryEntry& entry, const planning::CurrencyList& currencies) {
  if (!entry.currency || !entry.year) return "";
  const auto* const currency = currencies.Find(*entry.currency);
  const std::string code = currency != nullptr ? currency->code : std::to_string(*entry.currency);
  return code + "/" + std::to_string(*entry.year);
}

std::string Described(const HistoryEntry& entry, const planning::CurrencyList& currencies) {
  const std::string calendar = CalendarOf(entry, currencies);
  return "The entry " + std::to_string(entry.id) + " (" + entry.procedure +
         (calendar.empty() ? "" : " for " + calendar) + ", " + entry.moment + ", by " + entry.user + ")";
}

/// The procedure does not tell which later call it was, so what may be it is named.
std::string WhyItStays(const HistoryEntry& entry, const std::optional<HistoryEntry>& later,
                       const planning::CurrencyList& currencies) {
  const std::string why =
      Described(entry, currencies) +
      " cannot be undone: a later call changed the same, or the history does not keep what was there before";
  if (!later) return why;
  std::string name = Described(*later, currencies);
  name[0] = 't';
  return why + ". The newest call for " + CalendarOf(*later, currencies) + " is " + name +
         "; undo that first";
}

Failure NoSuchEntry(std::int32_t id) {
  return {platform::failure_number::kInvalidArgument, "The history has no entry " + std::to_string(id)};
}

HistoryEntry RequireEntry(std::int32_t id) {
  auto found = planning::LoadEntry(id);
  if (!found) throw NoSuchEntry(id);
  return std::move(found->entry);
}

void Undo(const HistoryEntry& entry, const planning::CurrencyList& currencies) {
  using Kind = planning::UndoOutcome::Kind;
  const auto outcome = planning::UndoEntry(entry);
  if (outcome.kind == Kind::kNoSuchEntry) throw NoSuchEntry(entry.id);
  if (outcome.kind == Kind::kRefused) {
    throw Failure(platform::failure_number::kInvalidArgument, WhyItStays(entry, outcome.later, currencies));
  }
}

}  // namespace

ExitStatus UndoCommand::Run(const platform::EngineRegistry& engines, std::ostream& out) const {
  const std::int32_t number = ReadEntryNumber(entry);
  std::string undone;
  std::vector<HistoryEntry> newest;
  RunWithCalendars(engines, url, [&] {
    const HistoryEntry wanted = RequireEntry(number);
    const auto currencies = planning::CurrencyList::Load();
    Undo(wanted, currencies);
    undone = Described(wanted, currencies);
    newest = planning::LoadHistory({}, std::nullopt, 1).entries;
  });
  out << OneLine(undone) << " is undone.\n";
  if (!newest.empty() && newest.front().procedure == "CldUndo") {
    out << "That is the entry " << newest.front().id << ", which can be undone itself.\n";
  }
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
