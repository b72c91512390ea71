#pragma once

namespace ferrowind {

/// A window of planning: shown beside the others, closed by its frame, Esc or Ctrl+W. Its handlers keep it
/// alive while they run, so that it may be dropped at any time.
class PlanningWindow {
 public:
  virtual ~PlanningWindow() = default;
  /// Shows the window, or brings it to the front, restored if it is minimised.
  virtual void ShowInFront() = 0;
  /// True from when it was made until it has been closed.
  [[nodiscard]] virtual bool IsOpen() const = 0;
  /// Closes the window; false when it refuses.
  virtual bool Close() = 0;
};

}  // namespace ferrowind
