#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/history_store.h"
#include "ferrowind/planning/undo_state.h"

namespace ferrowind::planning {

/// What an action of several calls has changed, so that all of it can be undone in one step.
class ActionCalls {
 public:
  /// Of nothing.
  ActionCalls() = default;

  /// How far the history was before an action, and who asks; nothing when it could not be read.
  struct Mark {
    std::int32_t entry = 0;
    std::string asker;
  };
  [[nodiscard]] static std::optional<Mark> Begin();
  /// The calls of the action that was begun with `before`, as the history has them: what the user of this
  /// program has changed since in `calendars` and in the rule books of their currencies. Empty when the
  /// history cannot be read, which keeps no action from being done.
  [[nodiscard]] static ActionCalls Since(const std::optional<Mark>& before,
                                         std::span<const CalendarKey> calendars);
  /// The calls that `act` makes, whose failure reaches the caller.
  template <typename Act>
  [[nodiscard]] static ActionCalls Of(std::span<const CalendarKey> calendars, Act act) {
    const auto before = Begin();
    act();
    return Since(before, calendars);
  }

  [[nodiscard]] bool IsEmpty() const { return calls_.empty(); }
  /// How many calls there are to undo.
  [[nodiscard]] std::size_t Count() const { return calls_.size(); }
  /// Whether the call of that entry of the history is one of them.
  [[nodiscard]] bool Has(std::int32_t entry) const;
  /// The number of the oldest call's entry of the history. Precondition: there is a call.
  [[nodiscard]] std::int32_t FirstEntry() const { return calls_.front().id; }
  /// Takes the calls off that `state` knows to be undone.
  void DropUndone(const UndoState& state);

  struct Outcome {
    /// How many of the calls are undone.
    std::size_t undone = 0;
    /// Whether anything may have been changed: a call that failed may have come to its end all the same.
    bool may_have_changed = false;
    /// What is not undone and why: sentences for operators.
    std::vector<std::string> problems = {};
  };
  /// Undoes the calls, the newest first. One that the database refuses to undo, because a later one has
  /// changed the same, is given up; from one that fails on, all stay to be undone another time.
  Outcome Undo();

 private:
  /// The oldest first.
  std::vector<HistoryEntry> calls_;
};

}  // namespace ferrowind::planning
