#pragma once

#include <windows.h>

namespace ferrowind::automation {

/// The control's window in a container's: hidden at first, of the control's size, showing the picture of the
/// designer. The handle is null once the container's window has taken it with it.
class InPlaceWindow {
 public:
  /// `left_top` is in the client area of `parent`. A failure when the platform makes no such window.
  InPlaceWindow(HWND parent, POINT left_top);
  ~InPlaceWindow();
  InPlaceWindow(const InPlaceWindow&) = delete;
  InPlaceWindow& operator=(const InPlaceWindow&) = delete;

  [[nodiscard]] HWND Handle() const { return handle_; }
  /// Where it is in its parent's client area; empty without a window.
  [[nodiscard]] RECT Place() const;
  /// Only what is inside of `clip`, which is in the parent's client area, can be seen.
  void MoveTo(POINT left_top, const RECT& clip);
  void Show(bool is_shown);

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM w_param, LPARAM l_param, UINT_PTR id,
                                    DWORD_PTR object) noexcept;
  void Paint() const;

  HWND handle_;
};

}  // namespace ferrowind::automation
