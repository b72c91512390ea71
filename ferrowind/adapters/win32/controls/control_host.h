#pragma once

#include <memory>
#include <optional>
#include <string>

#include "ferrowind/adapters/win32/base/window_thread.h"

namespace ferrowind::win32 {

class ControlWindow;

/// What a form is to its controls.
class ControlHost {
 public:
  virtual ~ControlHost() = default;
  [[nodiscard]] virtual const std::shared_ptr<FormSite>& Site() const = 0;
  [[nodiscard]] virtual WindowThread& Thread() const = 0;
  /// The room that a control needs, or whether it is shown, has changed.
  virtual void LayoutChanged() = 0;
  /// A key or a character that a control got, before it handles it itself: true when it was the form's.
  [[nodiscard]] virtual bool TakesKey(ControlWindow& control, UINT message, WPARAM key, LPARAM state) = 0;
  /// The control has the keyboard focus now.
  virtual void GotFocus(ControlWindow& control) = 0;
  /// Gives the control the focus, or as soon as the form can have it.
  virtual void MoveFocusTo(ControlWindow& control) = 0;
  /// Where menus open that a key asks for; nothing for where the mouse is.
  virtual void PlaceMenus(std::optional<POINT> screen) = 0;
  /// What is told of a window while the mouse rests on it; "" for nothing.
  virtual void SetTip(HWND window, const std::string& text) = 0;
};

}  // namespace ferrowind::win32
