#include "ferrowind/planning/action_calls.h"

#include <algorithm>
#include <utility>

#include "ferrowind/data/action_scope.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/history_words.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/planning/told_undo.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::planning {
namespace {

/// More calls than any action makes: one for each calendar, and one for each book.
constexpr std::int32_t kMostCalls = 1000;

/// Of one of the calendars, or of the book of its currency, which has no year.
bool IsOf(const HistoryEntry& entry, std::span<const CalendarKey> calendars) {
  return std::any_of(calendars.begin(), calendars.end(), [&](const CalendarKey& calendar) {
    return entry.currency == calendar.first && (!entry.year || entry.year == calendar.second);
  });
}

}  // namespace

std::optional<ActionCalls::Mark> ActionCalls::Begin() {
  try {
    const HistoryPage page = LoadHistory({}, std::nullopt, 1);
    return Mark{page.entries.empty() ? 0 : page.entries.front().id, page.asker};
  } catch (const platform::Failure&) {
    return std::nullopt;
  }
}

ActionCalls ActionCalls::Since(const std::optional<Mark>& before, std::span<const CalendarKey> calendars) {
  ActionCalls made;
  if (!before) return made;
  try {
    HistoryPage page = LoadHistory({.user = before->asker}, std::nullopt, kMostCalls);
    std::reverse(page.entries.begin(), page.entries.end());
    for (HistoryEntry& entry : page.entries) {
      if (entry.id > before->entry && IsOf(entry, calendars)) made.calls_.push_back(std::move(entry));
    }
  } catch (const platform::Failure&) {
    made.calls_.clear();
  }
  return made;
}

void ActionCalls::DropUndone(const UndoState& state) {
  std::erase_if(calls_, [&](const HistoryEntry& call) { return state.IsUndone(call.id); });
}

bool ActionCalls::Has(std::int32_t entry) const {
  return std::any_of(calls_.begin(), calls_.end(),
                     [&](const HistoryEntry& call) { return call.id == entry; });
}

ActionCalls::Outcome ActionCalls::Undo() {
  Outcome outcome;
  try {
    const ActionScope together(AttachedPlatform().action_observer, platform::ActionKind::kUndo);
    const auto currencies = CurrencyList::Load();
    const HistoryWords words(currencies, FindEntry);
    for (; !calls_.empty(); calls_.pop_back()) {
      outcome.may_have_changed = true;
      const UndoOutcome undone = UndoTold(calls_.back(), currencies);
      if (undone.kind == UndoOutcome::Kind::kDone) {
        ++outcome.undone;
      } else {
        outcome.problems.push_back(InWords(
            "%1: %2", {words.Tell(calls_.back()).Sentence(), words.WhyNotUndone(calls_.back(), undone)}));
      }
    }
  } catch (const platform::Interruption&) {
    throw;
  } catch (const platform::Failure& failure) {
    outcome.problems.push_back(failure.Description() + ".");
  }
  return outcome;
}

}  // namespace ferrowind::planning
