#pragma once

#include <cstdint>
#include <vector>

#include "ferrowind/planning/action_calls.h"
#include "ferrowind/planning/undo_state.h"

namespace ferrowind::planning {

/// What the operator has done since the program was started in actions that may be of several calls, each of
/// which is undone in one step, whatever came after it.
class ActionStack {
 public:
  /// Where an action was done.
  enum class Origin : std::uint8_t { kYearPlanner, kAssignment };

  /// Puts an action on top; none without any call.
  void Add(Origin origin, ActionCalls calls);

  /// The newest of that origin with a call that is not undone; null without one. Valid until the stack is
  /// changed otherwise than by undoing it.
  [[nodiscard]] ActionCalls* Newest(Origin origin);
  /// The action of several calls that are not undone of which the call of that entry of the history is one;
  /// null without one. Valid as above.
  [[nodiscard]] ActionCalls* JointActionOf(std::int32_t entry);

  /// Takes the calls off that are undone by now, by whichever window or program; none while the history
  /// cannot be read.
  void DropUndone();

 private:
  struct Action {
    Origin origin = Origin::kYearPlanner;
    ActionCalls calls;
  };

  /// Those that are empty are undone.
  std::vector<Action> actions_;
  /// Of the entries behind the first action up to the last one that was read.
  UndoState state_;
  std::int32_t last_read_ = 0;
};

}  // namespace ferrowind::planning
