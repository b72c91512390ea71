#include "ferrowind/adapters/win32/controls/drop_down_list.h"

#include <algorithm>
#include <utility>

#include "ferrowind/adapters/win32/base/twips.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
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
