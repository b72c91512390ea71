#pragma once

#include <functional>
#include <utility>

#include "ferrowind/export.h"

namespace ferrowind::platform {

/// The owned handle of one event subscription: dropping it unsubscribes.
///
/// Safe to drop at any time, also from inside the handler that it stands for and after the source of the
/// event is gone. Empty when default-constructed or moved from.
class FERROWIND_EXPORT Subscription {
 public:
  Subscription() = default;
  /// `unsubscribe` is run once, when the handle is dropped or reset; it must not throw.
  explicit Subscription(std::function<void()> unsubscribe) : unsubscribe_(std::move(unsubscribe)) {}
  ~Subscription() { Reset(); }

  Subscription(const Subscription&) = delete;
  Subscription& operator=(const Subscription&) = delete;
  /// `other` holds no subscription afterwards.
  Subscription(Subscription&& other) noexcept : unsubscribe_(std::exchange(other.unsubscribe_, nullptr)) {}
  /// Drops what was held, and takes over what `other` holds.
  Subscription& operator=(Subscription&& other) noexcept {
    if (this != &other) {
      Reset();
      unsubscribe_ = std::exchange(other.unsubscribe_, nullptr);
    }
    return *this;
  }

  /// Unsubscribes now; does nothing when there is nothing to unsubscribe.
  void Reset() {
    if (auto unsubscribe = std::exchange(unsubscribe_, nullptr)) unsubscribe();
  }

 private:
  std::function<void()> unsubscribe_;
};

}  // namespace ferrowind::platform
