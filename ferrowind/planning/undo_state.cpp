#include "ferrowind/planning/undo_state.h"

#include <algorithm>

namespace ferrowind::planning {

void UndoState::Add(const HistoryEntry& entry) {
  if (const auto undone = UndoneEntry(entry)) undoers_.emplace(*undone, entry.id);
}

std::optional<std::int32_t> UndoState::UndoerOf(std::int32_t entry) const {
  const auto [first, last] = undoers_.equal_range(entry);
  // An undoer is newer than what it undid, so this comes to an end.
  const auto found =
      std::find_if(first, last, [&](const auto& undoing) { return !IsUndone(undoing.second); });
  return found == last ? std::nullopt : std::optional<std::int32_t>(found->second);
}

UndoStep UndoState::StepOf(std::int32_t entry, const ToldEntry& told) const {
  const auto undoer = UndoerOf(entry);
  const bool is_done = told.IsDoing() != undoer.has_value();
  return {is_done ? UndoStep::Kind::kUndo : UndoStep::Kind::kRedo, undoer.value_or(entry)};
}

std::optional<OwnChange> LoadOwnLastChange(std::int32_t currency, std::int32_t year,
                                           const HistoryWords& words) {
  constexpr std::int32_t kPage = 50;
  constexpr int kMostPages = 6;
  UndoState state;
  std::optional<std::int32_t> before;
  for (int i = 0; i < kMostPages; ++i) {
    const HistoryPage page = LoadHistory({currency, year}, before, kPage);
    for (const HistoryEntry& entry : page.entries) {
      state.Add(entry);
      if (entry.user != page.asker || !entry.keeps_rows || state.IsUndone(entry.id)) continue;
      ToldEntry told = words.Tell(entry);
      if (told.IsDoing()) return OwnChange{entry, std::move(told)};
    }
    if (!page.has_older) return std::nullopt;
    before = page.entries.back().id;
  }
  return std::nullopt;
}

}  // namespace ferrowind::planning
