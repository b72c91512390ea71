#include "ferrowind/adapters/win32/controls/holder.h"

#include <utility>

#include "ferrowind/adapters/win32/base/handles.h"
#include "ferrowind/adapters/win32/base/twips.h"
#include "ferrowind/adapters/win32/base/wide_text.h"

namespace ferrowind::win32 {

Win32Holder::Win32Holder(ControlHost& host, std::string name, HWND parent, Kind kind)
    : Win32Control(host, std::move(name),
                   {.window_class = PaneClass(),
                    .style = WS_CLIPCHILDREN,
                    .extended_style = WS_EX_CONTROLPARENT,
                    .parent = parent}),
      kind_(kind) {}

void Win32Holder::SetTitle(const std::string& title) {
  title_ = title;
  SetWindowTextW(Handle(), ToWide(title).c_str());
  NeedsOtherRoom();
}

RECT Win32Holder::Margins() const {
  if (kind_ != Kind::kFrame) return {};
  constexpr int kMargin = 8;
  const LONG margin = Scaled(kMargin, DotsPerInch());
  return {margin, title_.empty() ? margin : TextSize(title_).cy + margin / 2, margin, margin};
}

LRESULT Win32Holder::OnMessage(UINT message, WPARAM w_param, LPARAM l_param) {
  if (message == WM_PAINT && kind_ == Kind::kFrame) {
    PAINTSTRUCT paint{};
    Paint(BeginPaint(Handle(), &paint));
    EndPaint(Handle(), &paint);
    return 0;
  }
  if (drag_ && FollowDrag(message, l_param)) return 0;
  if (message == WM_SIZE && kind_ == Kind::kFrame) InvalidateRect(Handle(), nullptr, TRUE);
  return ControlWindow::OnMessage(message, w_param, l_param);
}

bool Win32Holder::FollowDrag(UINT message, LPARAM l_param) {
  const POINT place{static_cast<short>(LOWORD(l_param)), static_cast<short>(HIWORD(l_param))};
  switch (message) {
    case WM_LBUTTONDOWN:
      drag_place_ = place;
      SetCapture(Handle());
      return true;
    case WM_MOUSEMOVE:
      // Where the mouse is on none of its parts, it is between two of them.
      SetCursor(LoadCursorW(nullptr, MAKEINTRESOURCEW(32644)));
      if (drag_place_) drag_(std::exchange(*drag_place_, place), place);
      return true;
    case WM_LBUTTONUP:
      drag_place_.reset();
      ReleaseCapture();
      return true;
    case WM_CAPTURECHANGED:
      drag_place_.reset();
      return true;
    default:
      return false;
  }
}

void Win32Holder::Paint(HDC context) const {
  RECT area{};
  GetClientRect(Handle(), &area);
  const std::wstring title = ToWide(title_);
  const SIZE text = TextSize(title_);
  if (!title.empty()) area.top += text.cy / 2;
  SetDCBrushColor(context, Colors().line);
  FrameRect(context, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
  if (title.empty()) return;
  const Selected font(context, Font());
  SetBkColor(context, Colors().face);
  SetTextColor(context, IsWindowEnabled(Handle()) != 0 ? Colors().face_text : Colors().muted);
  constexpr int kIndent = 8;
  TextOutW(context, Scaled(kIndent, DotsPerInch()), 0, title.c_str(), static_cast<int>(title.size()));
}

}  // namespace ferrowind::win32
