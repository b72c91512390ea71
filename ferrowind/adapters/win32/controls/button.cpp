#include "ferrowind/adapters/win32/controls/button.h"

#include <algorithm>
#include <utility>

#include "ferrowind/adapters/win32/base/buffered_paint.h"
#include "ferrowind/adapters/win32/base/twips.h"
#include "ferrowind/adapters/win32/controls/marked_caption.h"

namespace ferrowind::win32 {

Win32Button::Win32Button(ControlHost& host, std::string name, HWND parent)
    : Win32Control(host, std::move(name),
                   {.window_class = WC_BUTTONW, .style = BS_PUSHBUTTON | WS_TABSTOP, .parent = parent}) {}

void Win32Button::SetCaption(const std::string& caption) {
  if (caption == caption_) return;
  caption_ = caption;
  SetWindowTextW(Handle(), MarkedCaption(caption_, mnemonic_).c_str());
  NeedsOtherRoom();
}

void Win32Button::SetDescription(const std::string& description) { Host().SetTip(Handle(), description); }

void Win32Button::SetMnemonic(wchar_t mnemonic) {
  mnemonic_ = mnemonic;
  SetWindowTextW(Handle(), MarkedCaption(caption_, mnemonic_).c_str());
}

void Win32Button::ShowDefault(bool is_default) {
  is_default_ = is_default;
  SendMessageW(Handle(), BM_SETSTYLE, is_default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON, TRUE);
}

void Win32Button::Press() {
  if (IsUsable()) RaiseEvent(clicked_);
}

void Win32Button::OnCommand(WORD notification, WORD /*id*/) {
  if (notification == BN_CLICKED) Press();
}

LRESULT Win32Button::OnMessage(UINT message, WPARAM w_param, LPARAM l_param) {
  if (!IsDark()) return ControlWindow::OnMessage(message, w_param, l_param);
  switch (message) {
    case WM_PAINT:
      PaintDark();
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_ENABLE:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_MOUSEMOVE:
    case BM_SETSTATE:
    case BM_SETSTYLE:
      // The platform's buttons paint themselves at once then, without being asked.
      InvalidateRect(Handle(), nullptr, FALSE);
      break;
    default:
      break;
  }
  return ControlWindow::OnMessage(message, w_param, l_param);
}

void Win32Button::PaintDark() const {
  const BufferedPaint paint(Handle());
  const HDC context = paint.Context();
  if (context == nullptr) return;
  const Theme& colors = Colors();
  const bool is_pressed = (SendMessageW(Handle(), BM_GETSTATE, 0, 0) & BST_PUSHED) != 0;
  const bool has_focus = GetFocus() == Handle();
  RECT area = paint.Room();
  const auto fill = [&](COLORREF color) {
    SetDCBrushColor(context, color);
    FillRect(context, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
  };
  fill(has_focus || is_default_ ? colors.accent : colors.line);
  InflateRect(&area, -1, -1);
  fill(is_pressed ? colors.window : Blend(colors.face, colors.line, 0.5));
  const Selected font(context, Font());
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, IsWindowEnabled(Handle()) != 0 ? colors.face_text : colors.muted);
  const std::wstring caption = MarkedCaption(caption_, mnemonic_);
  DrawTextW(context, caption.c_str(), static_cast<int>(caption.size()), &area,
            DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_END_ELLIPSIS);
  if (!has_focus) return;
  InflateRect(&area, -2, -2);
  SetTextColor(context, colors.text);
  SetBkColor(context, colors.face);
  DrawFocusRect(context, &area);
}

SIZE Win32Button::NeededSize() const {
  constexpr int kLeastWidth = 75;
  constexpr int kBesideText = 24;
  constexpr int kAroundText = 10;
  const UINT dpi = DotsPerInch();
  const SIZE text = TextSize(caption_);
  return {std::max<LONG>(Scaled(kLeastWidth, dpi), text.cx + Scaled(kBesideText, dpi)),
          std::max<LONG>(text.cy, TextSize("X").cy) + Scaled(kAroundText, dpi)};
}

}  // namespace ferrowind::win32
