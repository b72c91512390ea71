#include "ferrowind/adapters/win32/controls/button.h"

#include <algorithm>
#include <utility>

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
  SendMessageW(Handle(), BM_SETSTYLE, is_default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON, TRUE);
}

void Win32Button::Press() {
  if (IsUsable()) RaiseEvent(clicked_);
}

void Win32Button::OnCommand(WORD notification, WORD /*id*/) {
  if (notification == BN_CLICKED) Press();
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
