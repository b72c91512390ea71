// What the operator does in a year by mouse and keyboard.
#include <optional>

#include "ferrowind/adapters/win32/year/year_view.h"

namespace ferrowind::win32 {

using year_engine::YearPlace;
using year_engine::YearStep;

namespace {

bool IsHeld(int modifier) { return GetKeyState(modifier) < 0; }

POINT PlaceOf(LPARAM l_param) {
  return {static_cast<short>(LOWORD(l_param)), static_cast<short>(HIWORD(l_param))};
}

std::optional<YearStep> StepOf(const KeyPress& press) {
  if (press.has_alt) return std::nullopt;
  switch (press.key) {
    case VK_LEFT:
      return YearStep::kDayBefore;
    case VK_RIGHT:
      return YearStep::kDayAfter;
    case VK_UP:
      return YearStep::kUp;
    case VK_DOWN:
      return YearStep::kDown;
    case VK_PRIOR:
      return YearStep::kMonthBefore;
    case VK_NEXT:
      return YearStep::kMonthAfter;
    case VK_HOME:
      return press.has_control ? YearStep::kYearStart : YearStep::kMonthStart;
    case VK_END:
      return press.has_control ? YearStep::kYearEnd : YearStep::kMonthEnd;
    default:
      return std::nullopt;
  }
}

}  // namespace

LRESULT Win32YearView::OnMessage(UINT message, WPARAM w_param, LPARAM l_param) {
  switch (message) {
    case WM_PAINT:
      Paint();
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_SIZE:
    case WM_SETFONT: {
      const LRESULT result = ControlWindow::OnMessage(message, w_param, l_param);
      Arrange();
      return result;
    }
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_ENABLE:
      Repaint();
      break;
    case WM_VSCROLL:
      Scroll(SB_VERT, LOWORD(w_param));
      return 0;
    case WM_HSCROLL:
      Scroll(SB_HORZ, LOWORD(w_param));
      return 0;
    case WM_MOUSEWHEEL: {
      for (int steps = wheel_.Take(w_param); steps != 0; steps += steps > 0 ? -1 : 1)
        Scroll(SB_VERT, steps > 0 ? SB_LINEUP : SB_LINEDOWN);
      return 0;
    }
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_LBUTTONUP:
    case WM_MOUSEMOVE:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
      if (OnMouse(message, PlaceOf(l_param))) return 0;
      break;
    case WM_CAPTURECHANGED:
      is_dragging_ = false;
      return 0;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      if (cursor_.Current() && OnKey(PressOf(w_param))) return 0;
      break;
    default:
      break;
  }
  return ControlWindow::OnMessage(message, w_param, l_param);
}

bool Win32YearView::OnMouse(UINT message, POINT place) {
  const auto day = PlaceAt(place);
  switch (message) {
    case WM_LBUTTONDOWN:
      TakeFocus();
      if (!day) return true;
      is_dragging_ = true;
      SetCapture(Handle());
      ChangeCursor([&] {
        if (IsHeld(VK_SHIFT)) {
          cursor_.ExtendTo(*day, IsHeld(VK_CONTROL));
        } else if (IsHeld(VK_CONTROL)) {
          cursor_.Toggle(*day);
        } else {
          cursor_.GoTo(*day);
        }
      });
      return true;
    case WM_RBUTTONDOWN:
      TakeFocus();
      if (day) ChangeCursor([&] { cursor_.PointAt(*day); });
      return true;
    case WM_MOUSEMOVE:
      if (!is_dragging_) {
        ShowTipAt(place);
      } else if (day && day != cursor_.Current()) {
        ChangeCursor([&] { cursor_.ExtendTo(*day, IsHeld(VK_CONTROL)); });
      }
      return false;
    case WM_LBUTTONUP:
      is_dragging_ = false;
      ReleaseCapture();
      return true;
    case WM_LBUTTONDBLCLK:
      if (day) Activate();
      return true;
    case WM_RBUTTONUP:
      // Last, since who listens may open a menu and close the window from it.
      if (day) AskForMenu();
      return true;
    default:
      return false;
  }
}

bool Win32YearView::OnKey(const KeyPress& press) {
  if (const auto step = StepOf(press)) {
    const YearPlace place = cursor_.After(*step);
    ChangeCursor([&] {
      if (press.has_shift) {
        cursor_.ExtendTo(place);
      } else {
        cursor_.GoTo(place);
      }
    });
    return true;
  }
  if (press.key == VK_APPS || (press.has_shift && press.key == VK_F10)) {
    BringIntoSight(*cursor_.Current());
    const RECT area = AreaOf(*cursor_.Current());
    POINT screen{area.left, area.bottom};
    ClientToScreen(Handle(), &screen);
    Host().PlaceMenus(screen);
    AskForMenu();
    Host().PlaceMenus(std::nullopt);
    return true;
  }
  if (press.has_alt || press.has_control) return false;
  switch (press.key) {
    case VK_SPACE:
      ChangeCursor([&] { cursor_.Toggle(*cursor_.Current()); });
      return true;
    case VK_RETURN:
      Activate();
      return true;
    default:
      return false;
  }
}

}  // namespace ferrowind::win32
