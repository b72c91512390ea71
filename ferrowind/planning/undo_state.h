#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/planning/history_store.h"
#include "ferrowind/planning/history_words.h"

namespace ferrowind::planning {

/// What one can do about an entry.
struct UndoStep {
  enum class Kind { kUndo, kRedo };

  Kind kind = Kind::kUndo;
  /// The entry that `UndoEntry` takes for it: the one itself, or the one that undid it.
  std::int32_t entry = 0;
};

/// Which entries are in force, by the entries that undid others.
class UndoState {
 public:
  /// Of an entry that undid an older one. All later entries that undid one of these must be told, too, in
  /// whatever order.
  void Add(const HistoryEntry& entry);

  /// Whether what the entry did was undone, and not done again since.
  [[nodiscard]] bool IsUndone(std::int32_t entry) const { return UndoerOf(entry).has_value(); }
  /// The entry in force that undid it.
  [[nodiscard]] std::optional<std::int32_t> UndoerOf(std::int32_t entry) const;
  /// For an entry whose call is `told`: undo what was done, redo what was undone.
  [[nodiscard]] UndoStep StepOf(std::int32_t entry, const ToldEntry& told) const;

 private:
  /// By the entry that was undone, those that did it.
  std::multimap<std::int32_t, std::int32_t> undoers_;
};

/// The newest change of a calendar that the user asking made and that is in force.
struct OwnChange {
  HistoryEntry entry;
  ToldEntry told;
};

/// Of the calendar's newest entries, a few hundred at most, the newest that the user of this program made and
/// that is in force; nothing when there is none. Neither an undoing is one, what it did is taken back by a
/// redo, nor a call that left everything as it was.
/// Fails as database_call.h says.
[[nodiscard]] std::optional<OwnChange> LoadOwnLastChange(std::int32_t currency, std::int32_t year,
                                                         const HistoryWords& words);

}  // namespace ferrowind::planning
