#include "host/admin/undo_command.h"

#include <optional>
#include <ostream>
#include <string>
#include <utility>

#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/history_store.h"
#include "ferrowind/planning/history_words.h"
#include "ferrowind/platform/values/failure.h"

#include "host/admin/database_content.h"
#include "host/admin/english_day.h"
#include "host/admin/history_arguments.h"
#include "host/admin/text_escapes.h"

namespace ferrowind::host {
namespace {

using planning::HistoryEntry;
using planning::HistoryWords;
using planning::UndoOutcome;
using platform::Failure;

Failure Refused(const std::string& why) { return {platform::failure_number::kInvalidArgument, why}; }

/// "entry 80 of USD 2027, "Created the calendar USD 2027" (2026-11-22T17:14:25.712Z, by anna)".
std::string Described(const HistoryEntry& entry, const HistoryWords& words) {
  const std::string of_what = words.Calendar(entry);
  return "entry " + std::to_string(entry.id) + (of_what.empty() ? "" : " of " + of_what) + ", \"" +
         words.Tell(entry).Sentence() + "\" (" + entry.moment + ", by " + entry.user + ")";
}

std::string WhyItStays(const HistoryEntry& entry, const UndoOutcome& outcome, const HistoryWords& words) {
  const std::string described = "The " + Described(entry, words);
  if (outcome.undoer) {
    const std::string undoer = std::to_string(outcome.undoer->id);
    return described + " is undone already: the entry " + undoer + " has undone it; \"undo\" " + undoer +
           " to have it again";
  }
  const std::string why =
      described +
      " cannot be undone: a later call changed the same, or the history does not keep what was there before";
  if (!outcome.later) return why;
  return why + ". The newest call for the same is the " + Described(*outcome.later, words) +
         "; undo that first";
}

Failure NoSuchEntry(std::int32_t id) { return Refused("The history has no entry " + std::to_string(id)); }

HistoryEntry RequireEntry(std::int32_t id) {
  auto found = planning::FindEntry(id);
  if (!found) throw NoSuchEntry(id);
  return *std::move(found);
}

void Undo(const HistoryEntry& entry, const HistoryWords& words) {
  using Kind = UndoOutcome::Kind;
  const auto outcome = planning::UndoEntry(entry);
  if (outcome.kind == Kind::kNoSuchEntry) throw NoSuchEntry(entry.id);
  if (outcome.kind == Kind::kRefused) throw Refused(WhyItStays(entry, outcome, words));
}

/// Without anybody to ask, a script is at work, which says by the number what it wants.
bool IsWanted(const std::string& described, const Confirmation& confirm) {
  return confirm("Undo the " + OneLine(described) + "?").value_or(true);
}

}  // namespace

ExitStatus UndoCommand::Run(const platform::EngineRegistry& engines, const Confirmation& confirm,
                            std::ostream& out, std::ostream& errors) const {
  const std::int32_t number = ReadEntryNumber(entry);
  std::string undone;
  std::optional<HistoryEntry> undoing;
  bool is_wanted = true;
  RunWithCalendars(engines, url, [&] {
    const HistoryEntry wanted = RequireEntry(number);
    const auto currencies = planning::CurrencyList::Load();
    const HistoryWords words(currencies, planning::FindEntry, EnglishDay);
    undone = Described(wanted, words);
    is_wanted = is_confirmed || IsWanted(undone, confirm);
    if (!is_wanted) return;
    Undo(wanted, words);
    auto newest = planning::LoadHistory({}, std::nullopt, 1).entries;
    if (!newest.empty() && planning::UndoneEntry(newest.front()) == wanted.id) {
      undoing = std::move(newest.front());
    }
  });
  if (!is_wanted) {
    errors << "ferrowindctl: nothing was changed\n";
    return ExitStatus::kNotDone;
  }
  out << "The " << OneLine(undone) << " is undone.\n";
  if (undoing) out << "That is the entry " << undoing->id << ", which can be undone itself.\n";
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
