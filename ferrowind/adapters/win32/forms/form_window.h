#pragma once

#include <functional>

#include "ferrowind/adapters/win32/base/native_window.h"
#include "ferrowind/platform/toolkit/form_design.h"

namespace ferrowind::win32 {

/// The top-level window of a form. It never closes itself: it asks.
class FormWindow final : public NativeWindow {
 public:
  struct Callbacks {
    /// The operator asks for the form to be closed.
    std::function<void()> close_asked;
    /// The client area has another size, or a monitor of another resolution.
    std::function<void()> resized;
    std::function<void()> resolution_changed;
    /// The user has chosen other colours.
    std::function<void()> colors_changed;
    /// The window has the keyboard focus itself, which it hands on.
    std::function<void()> focus_came;
    /// A key while no control has the focus: true when it was the form's.
    std::function<bool(UINT message, WPARAM key, LPARAM state)> key;
  };

  FormWindow(std::shared_ptr<FormSite> site, platform::FormBorder border);

  void SetCallbacks(Callbacks callbacks) { callbacks_ = std::move(callbacks); }
  [[nodiscard]] platform::FormBorder Border() const { return border_; }

  /// In pixels of the screen; of a minimised window as it will be again.
  [[nodiscard]] RECT OuterArea() const;
  void SetOuterArea(const RECT& area);
  /// Gives it the outer size for that client area.
  void SetClientSize(const SIZE& size);
  /// Has the platform paint the frame dark where the form is.
  void UseColors();

 protected:
  LRESULT OnMessage(UINT message, WPARAM w_param, LPARAM l_param) override;

 private:
  platform::FormBorder border_;
  Callbacks callbacks_;
};

}  // namespace ferrowind::win32
