#include "ferrowind/adapters/win32/controls/drop_down_list.h"

#include <algorithm>
#include <utility>

#include "ferrowind/adapters/win32/base/buffered_paint.h"
#include "ferrowind/adapters/win32/base/twips.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/controls/shapes.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {

Win32DropDownList::Win32DropDownList(ControlHost& host, std::string name, HWND parent)
    : Win32Control(host, std::move(name),
                   {.window_class = WC_COMBOBOXW,
                    .style = CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP,
                    .parent = parent}) {}

void Win32DropDownList::AddItem(const std::string& text, std::int32_t item_data) {
  items_.push_back({text, item_data});
  SendMessageW(Handle(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(ToWide(text).c_str()));
  NeedsOtherRoom();
}

const Win32DropDownList::Item& Win32DropDownList::ItemAt(std::int32_t position) const {
  if (position < 0 || position >= Count()) throw platform::SubscriptOutOfRange();
  return items_[static_cast<std::size_t>(position)];
}

void Win32DropDownList::Choose(std::int32_t position) {
  if (position < -1 || position >= Count()) throw platform::SubscriptOutOfRange();
  SendMessageW(Handle(), CB_SETCURSEL, static_cast<WPARAM>(position), 0);
  ChangeChoice(position);
}

void Win32DropDownList::ChangeChoice(std::int32_t position) {
  if (position == chosen_) return;
  chosen_ = position;
  RaiseEvent(choice_);
}

void Win32DropDownList::OnCommand(WORD notification, WORD /*id*/) {
  if (notification == CBN_SELCHANGE)
    ChangeChoice(static_cast<std::int32_t>(SendMessageW(Handle(), CB_GETCURSEL, 0, 0)));
}

bool Win32DropDownList::KeepsKey(WPARAM key) const {
  return (key == VK_RETURN || key == VK_ESCAPE) && SendMessageW(Handle(), CB_GETDROPPEDSTATE, 0, 0) != 0;
}

LRESULT Win32DropDownList::OnMessage(UINT message, WPARAM w_param, LPARAM l_param) {
  if (!IsDark()) return ControlWindow::OnMessage(message, w_param, l_param);
  switch (message) {
    case WM_PAINT:
      PaintDark();
      return 0;
    case WM_ERASEBKGND:
      return 1;
    default:
      break;
  }
  const LRESULT result = ControlWindow::OnMessage(message, w_param, l_param);
  switch (message) {
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_ENABLE:
    case WM_COMMAND:
    case WM_KEYDOWN:
    case WM_CHAR:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_MOUSEMOVE:
    case WM_MOUSELEAVE:
    case WM_MOUSEWHEEL:
    case CB_SETCURSEL:
    case CB_SHOWDROPDOWN:
      // The platform's list has painted itself then, without being asked.
      InvalidateRect(Handle(), nullptr, FALSE);
      break;
    default:
      break;
  }
  return result;
}

void Win32DropDownList::PaintDark() const {
  const BufferedPaint paint(Handle());
  const HDC context = paint.Context();
  if (context == nullptr) return;
  const Theme& colors = Colors();
  const bool is_enabled = IsWindowEnabled(Handle()) != 0;
  const auto fill = [&](const RECT& area, COLORREF color) {
    SetDCBrushColor(context, color);
    FillRect(context, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
  };
  RECT area = paint.Room();
  fill(area, GetFocus() == Handle() ? colors.accent : colors.line);
  InflateRect(&area, -1, -1);
  fill(area, is_enabled ? colors.window : colors.face);
  const LONG side = area.bottom - area.top;
  const COLORREF written = is_enabled ? colors.text : colors.muted;
  Shapes(context).Chevron({area.right - side, area.top, area.right, area.bottom}, written);
  if (chosen_ < 0) return;
  constexpr int kIndent = 3;
  area.left += Scaled(kIndent, DotsPerInch());
  area.right -= side;
  const Selected font(context, Font());
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, written);
  const std::wstring text = ToWide(ItemAt(chosen_).text);
  DrawTextW(context, text.c_str(), static_cast<int>(text.size()), &area,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

void Win32DropDownList::Place(const RECT& area) {
  constexpr int kRowsOnShow = 12;
  RECT with_list = area;
  with_list.bottom += kRowsOnShow * static_cast<LONG>(SendMessageW(Handle(), CB_GETITEMHEIGHT, 0, 0));
  ControlWindow::Place(with_list);
}

SIZE Win32DropDownList::NeededSize() const {
  constexpr int kLeastWidth = 90;
  constexpr int kBesideText = 32;
  LONG widest = 0;
  for (const Item& item : items_) widest = std::max(widest, TextSize(item.text).cx);
  // The control itself knows how high it is while it is closed.
  RECT area{};
  GetWindowRect(Handle(), &area);
  return {std::max<LONG>(Scaled(kLeastWidth, DotsPerInch()), widest + Scaled(kBesideText, DotsPerInch())),
          std::max<LONG>(area.bottom - area.top, TextSize("X").cy + Scaled(8, DotsPerInch()))};
}

}  // namespace ferrowind::win32
