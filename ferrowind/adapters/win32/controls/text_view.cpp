#include "ferrowind/adapters/win32/controls/text_view.h"

#include <utility>

#include "ferrowind/adapters/win32/base/twips.h"
#include "ferrowind/adapters/win32/base/wide_text.h"

namespace ferrowind::win32 {

Win32TextView::Win32TextView(ControlHost& host, std::string name, HWND parent)
    : Win32Control(host, std::move(name),
                   {.window_class = WC_EDITW,
                    .style = ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL | WS_VSCROLL | WS_TABSTOP,
                    .extended_style = WS_EX_CLIENTEDGE,
                    .parent = parent}) {}

void Win32TextView::SetText(const std::string& text) {
  if (text == text_) return;
  text_ = text;
  std::wstring lines;
  for (const wchar_t letter : ToWide(text)) {
    if (letter == L'\n') lines += L'\r';
    lines += letter;
  }
  SetWindowTextW(Handle(), lines.c_str());
}

SIZE Win32TextView::NeededSize() const {
  constexpr int kWidth = 160;
  constexpr int kLines = 3;
  constexpr int kAroundText = 8;
  return {Scaled(kWidth, DotsPerInch()), kLines * TextSize("X").cy + Scaled(kAroundText, DotsPerInch())};
}

}  // namespace ferrowind::win32
