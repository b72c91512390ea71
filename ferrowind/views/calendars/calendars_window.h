#pragma once

#include <functional>
#include <memory>

#include "ferrowind/control/grid_fields.h"
#include "ferrowind/platform/events/subscription.h"

namespace ferrowind {

/// What the control needs of the window that it opens.
class CalendarsWindow {
 public:
  virtual ~CalendarsWindow() = default;
  /// Makes the window ready to be shown; called once. False when that failed: the failure has been reported,
  /// and the window has unloaded itself and must not be shown. The maps are shared with the host.
  virtual bool Init(std::shared_ptr<GridFields> headers, std::shared_ptr<GridFields> holiday_headers) = 0;
  /// Shows the window beside the host's other windows.
  virtual void Show() = 0;
  /// Closes the window; false when a window opened from it refuses to close, and nothing is closed.
  virtual bool ForceClosing() = 0;
  /// The window is about to close; raised first thing. It may be dropped by the handler.
  [[nodiscard]] virtual platform::Subscription OnClosing(std::function<void()> handler) = 0;
};

}  // namespace ferrowind
