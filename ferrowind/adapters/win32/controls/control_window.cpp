#include "ferrowind/adapters/win32/controls/control_window.h"

#include <utility>

#include "ferrowind/adapters/win32/base/handles.h"
#include "ferrowind/adapters/win32/base/twips.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {

ControlWindow::ControlWindow(ControlHost& host, std::string name, const Design& design)
    : NativeWindow(host.Site(), {.window_class = design.window_class,
                                 .style = design.style | WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS,
                                 .extended_style = design.extended_style,
                                 .parent = design.parent}),
      host_(host),
      name_(std::move(name)) {}

void ControlWindow::Enable(bool enabled) {
  is_enabled_ = enabled;
  ShowEnabled();
}

void ControlWindow::ShowEnabled() {
  bool is_enabled = is_enabled_;
  for (const ControlWindow* around = container_; around != nullptr; around = around->container_)
    is_enabled = is_enabled && around->is_enabled_;
  EnableWindow(Handle(), is_enabled ? TRUE : FALSE);
  for (ControlWindow* inside : contained_) inside->ShowEnabled();
}

void ControlWindow::MakeVisible(bool visible) {
  if (visible == is_visible_) return;
  is_visible_ = visible;
  ShowWindow(Handle(), visible ? SW_SHOWNA : SW_HIDE);
  host_.LayoutChanged();
}

float ControlWindow::OuterHeight() const {
  RECT area{};
  GetWindowRect(Handle(), &area);
  return ToTwips(static_cast<int>(area.bottom - area.top), DotsPerInch());
}

void ControlWindow::SetOuterHeight(float height) {
  if (!(height >= 0)) throw platform::InvalidArgument();
  asked_height_ = height;
  host_.LayoutChanged();
}

void ControlWindow::TakeFocus() {
  if (IsUsable() && CanHaveFocus()) host_.MoveFocusTo(*this);
}

void ControlWindow::SetContainer(ControlWindow* container) {
  container_ = container;
  if (container != nullptr) container->contained_.push_back(this);
}

bool ControlWindow::IsUsable() const {
  return is_enabled_ && is_visible_ && (container_ == nullptr || container_->IsUsable());
}

SIZE ControlWindow::WantedSize() const {
  SIZE size = NeededSize();
  if (asked_height_ >= 0) size.cy = ToPixels(asked_height_, DotsPerInch());
  return size;
}

void ControlWindow::UseFont(HFONT font) {
  font_ = font;
  SendMessageW(Handle(), WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

void ControlWindow::Place(const RECT& area) {
  SetWindowPos(Handle(), nullptr, area.left, area.top, area.right - area.left, area.bottom - area.top,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

SIZE ControlWindow::TextSize(const std::string& text) const {
  const WindowContext context(Handle());
  const Selected font(context.Get(), font_);
  RECT area{};
  const std::wstring wide = ToWide(text.empty() ? "X" : text);
  DrawTextW(context.Get(), wide.c_str(), static_cast<int>(wide.size()), &area, DT_CALCRECT | DT_NOPREFIX);
  return {text.empty() ? 0 : area.right, area.bottom};
}

void ControlWindow::PaintDarkEdge() const {
  if ((GetWindowLongPtrW(Handle(), GWL_EXSTYLE) & WS_EX_CLIENTEDGE) == 0) return;
  RECT area{};
  GetWindowRect(Handle(), &area);
  OffsetRect(&area, -area.left, -area.top);
  const HDC context = GetWindowDC(Handle());
  const auto brush = static_cast<HBRUSH>(GetStockObject(DC_BRUSH));
  for (const COLORREF color : {Colors().line, Colors().window}) {
    SetDCBrushColor(context, color);
    FrameRect(context, &area, brush);
    InflateRect(&area, -1, -1);
  }
  ReleaseDC(Handle(), context);
}

LRESULT ControlWindow::OnMessage(UINT message, WPARAM w_param, LPARAM l_param) {
  switch (message) {
    case WM_NCPAINT: {
      const LRESULT result = NativeWindow::OnMessage(message, w_param, l_param);
      if (IsDark()) PaintDarkEdge();
      return result;
    }
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_CHAR:
    case WM_SYSCHAR:
      if (host_.TakesKey(*this, message, w_param, l_param)) return 0;
      break;
    case WM_SETFOCUS: {
      const LRESULT result = NativeWindow::OnMessage(message, w_param, l_param);
      host_.GotFocus(*this);
      if (const AccessibleWindow* accessible = Accessible()) accessible->TellCurrent();
      return result;
    }
    case WM_GETOBJECT:
      // The number comes in the lower half alone.
      if (static_cast<LONG>(l_param) == OBJID_CLIENT && Accessible() != nullptr)
        return Accessible()->Answer(w_param);
      break;
    case WM_KILLFOCUS: {
      const LRESULT result = NativeWindow::OnMessage(message, w_param, l_param);
      OnFocusLost();
      return result;
    }
    default:
      break;
  }
  return NativeWindow::OnMessage(message, w_param, l_param);
}

}  // namespace ferrowind::win32
