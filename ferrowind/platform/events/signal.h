#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "ferrowind/export.h"
#include "ferrowind/platform/events/subscription.h"

namespace ferrowind::platform {

/// The event source that sources of events are made of: an ordered list of handlers.
///
/// Handlers run in the order of their subscription, on the calling thread. A handler may subscribe, drop any
/// subscription (its own included) and destroy the signal itself: a handler dropped during an emission is not
/// called any more, one added during it is first called by the next. A failure thrown by a handler ends the
/// emission and reaches the caller of `Emit`.
template <typename... Arguments>
class FERROWIND_EXPORT Signal {
 public:
  /// What is called with the arguments of `Emit`.
  using Handler = std::function<void(Arguments...)>;

  Signal() = default;
  Signal(const Signal&) = delete;
  Signal& operator=(const Signal&) = delete;

  /// Has the handler, which must not be empty, called until the subscription is dropped; that may outlive the
  /// signal.
  [[nodiscard]] Subscription Subscribe(Handler handler) {
    auto slot = std::make_shared<Slot>(Slot{std::move(handler)});
    state_->subscribed.push_back(slot);
    return Subscription([state = std::weak_ptr<State>(state_), slot = std::weak_ptr<Slot>(slot)] {
      const auto dropped = slot.lock();
      if (!dropped) return;
      dropped->is_dropped = true;
      if (const auto all = state.lock()) all->RemoveDropped();
    });
  }

  /// Calls the handlers that are subscribed now, in the order in which they were.
  void Emit(Arguments... arguments) const {
    // Both are held here, since a handler may destroy the signal or drop its own subscription.
    const std::shared_ptr<State> state = state_;
    const Emission emission(*state);
    const std::size_t count = state->subscribed.size();
    for (std::size_t i = 0; i < count; ++i) {
      const std::shared_ptr<Slot> slot = state->subscribed[i];
      if (!slot->is_dropped) slot->handler(arguments...);
    }
  }

 private:
  struct Slot {
    Handler handler;
    bool is_dropped = false;
  };

  struct State {
    // Not called slots, which is a macro in hosts built with Qt.
    std::vector<std::shared_ptr<Slot>> subscribed;
    int emissions_under_way = 0;

    /// Put off while an emission walks the slots by position; the last emission to end makes up for it.
    void RemoveDropped() {
      if (emissions_under_way > 0) return;
      const auto is_dropped = [](const auto& slot) { return slot->is_dropped; };
      for (auto found = std::find_if(subscribed.begin(), subscribed.end(), is_dropped);
           found != subscribed.end();
           found = std::find_if(subscribed.begin(), subscribed.end(), is_dropped)) {
        // Dies only when the list is whole again, for what its handler owns may unsubscribe here as well.
        const std::shared_ptr<Slot> removed = std::move(*found);
        subscribed.erase(found);
      }
    }
  };

  class Emission {
   public:
    explicit Emission(State& state) : state_(state) { ++state_.emissions_under_way; }
    ~Emission() {
      if (--state_.emissions_under_way == 0) state_.RemoveDropped();
    }
    Emission(const Emission&) = delete;
    Emission& operator=(const Emission&) = delete;

   private:
    State& state_;
  };

  std::shared_ptr<State> state_ = std::make_shared<State>();
};

}  // namespace ferrowind::platform
