#pragma once

#include <memory>

#include "ferrowind/adapters/win32/controls/accessible_parts.h"

namespace ferrowind::win32 {

/// What answers assistive programs for a window with parts, for as long as the window is there.
class AccessibleWindow {
 public:
  /// Both outlive this.
  AccessibleWindow(HWND window, AccessibleParts& parts);
  /// From then on those who still hold what they were given are told that the window is gone.
  ~AccessibleWindow();
  AccessibleWindow(const AccessibleWindow&) = delete;
  AccessibleWindow& operator=(const AccessibleWindow&) = delete;

  /// The answer to a WM_GETOBJECT that asks for the client area.
  [[nodiscard]] LRESULT Answer(WPARAM w_param) const;
  ///@{
  /// Tells who listens that another part is current, that others are selected, or that the parts are others.
  void TellCurrent() const;
  void TellSelection() const;
  void TellContent() const;
  ///@}

  /// What is left of the window for those who hold its object.
  struct Link {
    HWND window = nullptr;
    /// Null when the window is gone.
    AccessibleParts* parts = nullptr;
  };

 private:
  std::shared_ptr<Link> link_;
};

}  // namespace ferrowind::win32
