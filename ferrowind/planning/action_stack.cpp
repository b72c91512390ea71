#include "ferrowind/planning/action_stack.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "ferrowind/planning/history_store.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::planning {

void ActionStack::Add(Origin origin, ActionCalls calls) {
  std::erase_if(actions_, [](const Action& action) { return action.calls.IsEmpty(); });
  if (calls.IsEmpty()) return;
  if (actions_.empty()) {
    state_ = {};
    last_read_ = calls.FirstEntry();
  }
  actions_.push_back({origin, std::move(calls)});
}

ActionCalls* ActionStack::Newest(Origin origin) {
  const auto found = std::find_if(actions_.rbegin(), actions_.rend(), [&](const Action& action) {
    return action.origin == origin && !action.calls.IsEmpty();
  });
  return found == actions_.rend() ? nullptr : &found->calls;
}

ActionCalls* ActionStack::JointActionOf(std::int32_t entry) {
  const auto found = std::find_if(actions_.begin(), actions_.end(), [&](const Action& action) {
    return action.calls.Count() > 1 && action.calls.Has(entry);
  });
  return found == actions_.end() ? nullptr : &found->calls;
}

void ActionStack::DropUndone() {
  constexpr std::int32_t kPage = 100;
  std::erase_if(actions_, [](const Action& action) { return action.calls.IsEmpty(); });
  if (actions_.empty()) return;
  try {
    UndoState state = state_;
    std::int32_t newest = last_read_;
    std::optional<std::int32_t> before;
    for (bool is_done = false; !is_done;) {
      const HistoryPage page = LoadHistory({}, before, kPage);
      for (const HistoryEntry& entry : page.entries) {
        is_done = entry.id <= last_read_;
        if (is_done) break;
        state.Add(entry);
        newest = std::max(newest, entry.id);
      }
      is_done = is_done || !page.has_older;
      if (!is_done) before = page.entries.back().id;
    }
    state_ = std::move(state);
    last_read_ = newest;
  } catch (const platform::Interruption&) {
    throw;
  } catch (const platform::Failure&) {
    return;
  }
  for (Action& action : actions_) action.calls.DropUndone(state_);
}

}  // namespace ferrowind::planning
