#include "ferrowind/adapters/win32/forms/form_window.h"

#include <utility>

#include <dwmapi.h>

namespace ferrowind::win32 {
namespace {

using platform::FormBorder;

DWORD StyleOf(FormBorder border) {
  switch (border) {
    case FormBorder::kSizable:
      return WS_OVERLAPPEDWINDOW;
    case FormBorder::kFixedDialog:
      return WS_POPUP | WS_CAPTION;
    case FormBorder::kClosableDialog:
      return WS_POPUP | WS_CAPTION | WS_SYSMENU;
    case FormBorder::kNone:
      return WS_POPUP | WS_BORDER;
  }
  return WS_OVERLAPPEDWINDOW;
}

DWORD ExtendedStyleOf(FormBorder border) {
  const bool is_dialog = border == FormBorder::kFixedDialog || border == FormBorder::kClosableDialog;
  return WS_EX_CONTROLPARENT | (is_dialog ? WS_EX_DLGMODALFRAME : 0U);
}

}  // namespace

FormWindow::FormWindow(std::shared_ptr<FormSite> site, FormBorder border)
    : NativeWindow(std::move(site), {.window_class = PaneClass(),
                                     .style = StyleOf(border) | WS_CLIPCHILDREN,
                                     .extended_style = ExtendedStyleOf(border)}),
      border_(border) {
  Site()->window = Handle();
}

RECT FormWindow::OuterArea() const {
  if (IsIconic(Handle()) != 0) {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(Handle(), &placement);
    return placement.rcNormalPosition;
  }
  RECT area{};
  GetWindowRect(Handle(), &area);
  return area;
}

void FormWindow::SetOuterArea(const RECT& area) {
  SetWindowPos(Handle(), nullptr, area.left, area.top, area.right - area.left, area.bottom - area.top,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

void FormWindow::SetClientSize(const SIZE& size) {
  RECT area{0, 0, size.cx, size.cy};
  AdjustWindowRectExForDpi(&area, StyleOf(border_), FALSE, ExtendedStyleOf(border_), DotsPerInch());
  SetWindowPos(Handle(), nullptr, 0, 0, area.right - area.left, area.bottom - area.top,
               SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOMOVE);
}

void FormWindow::UseColors() {
  constexpr DWORD kDarkFrame = 20;
  const BOOL is_dark = IsDark() ? TRUE : FALSE;
  DwmSetWindowAttribute(Handle(), kDarkFrame, &is_dark, sizeof is_dark);
}

LRESULT FormWindow::OnMessage(UINT message, WPARAM w_param, LPARAM l_param) {
  switch (message) {
    case WM_CLOSE:
      // Only its buttons close a fixed dialog, whatever the frame or the keyboard asks for.
      if (border_ != FormBorder::kFixedDialog && callbacks_.close_asked) callbacks_.close_asked();
      return 0;
    case WM_SIZE:
      if (w_param != SIZE_MINIMIZED && callbacks_.resized) callbacks_.resized();
      return 0;
    case WM_SETTINGCHANGE:
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
      if (callbacks_.colors_changed) callbacks_.colors_changed();
      break;
    case WM_SETFOCUS:
      if (callbacks_.focus_came) callbacks_.focus_came();
      return 0;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_CHAR:
    case WM_SYSCHAR:
      if (callbacks_.key && callbacks_.key(message, w_param, l_param)) return 0;
      break;
    case WM_DPICHANGED:
      if (callbacks_.resolution_changed) callbacks_.resolution_changed();
      SetOuterArea(*reinterpret_cast<const RECT*>(l_param));
      return 0;
    case WM_QUERYENDSESSION:
      if (!Site()->is_shown) return TRUE;
      // What waits for an answer would take the end of the session for one.
      if (border_ != FormBorder::kFixedDialog && callbacks_.close_asked) callbacks_.close_asked();
      return Site()->is_shown ? FALSE : TRUE;
    default:
      break;
  }
  return NativeWindow::OnMessage(message, w_param, l_param);
}

}  // namespace ferrowind::win32
