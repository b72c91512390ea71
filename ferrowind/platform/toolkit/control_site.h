#pragma once

#include <functional>

#include "ferrowind/export.h"
#include "ferrowind/platform/events/subscription.h"

namespace ferrowind::platform {

/// The place that a host gives to an embedded control on one of its windows.
class FERROWIND_EXPORT ControlSite {
 public:
  virtual ~ControlSite() = default;
  /// Outer size in twips. Setting the size that it already has raises no `OnResize`.
  virtual void SetSize(float width, float height) = 0;
  /// The host resized the control.
  [[nodiscard]] virtual Subscription OnResize(std::function<void()> handler) = 0;
};

}  // namespace ferrowind::platform
