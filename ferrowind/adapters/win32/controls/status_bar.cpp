#include "ferrowind/adapters/win32/controls/status_bar.h"

#include <utility>

#include "ferrowind/adapters/win32/base/twips.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {
namespace {

void RequirePanel(std::int32_t panel) {
  if (panel != 1) throw platform::SubscriptOutOfRange();
}

}  // namespace

Win32StatusBar::Win32StatusBar(ControlHost& host, std::string name, HWND parent)
    : Win32Control(host, std::move(name),
                   {.window_class = STATUSCLASSNAMEW,
                    .style = CCS_NOPARENTALIGN | CCS_NORESIZE | CCS_NODIVIDER,
                    .parent = parent}) {}

std::string Win32StatusBar::PanelText(std::int32_t panel) const {
  RequirePanel(panel);
  return text_;
}

void Win32StatusBar::SetPanelText(std::int32_t panel, const std::string& text) {
  RequirePanel(panel);
  text_ = text;
  ShowText();
}

void Win32StatusBar::ShowText() {
  // The platform has no dark text for it.
  const WPARAM kind = IsDark() ? SBT_OWNERDRAW : 0;
  SendMessageW(Handle(), SB_SETTEXTW, kind, IsDark() ? 0 : reinterpret_cast<LPARAM>(ToWide(text_).c_str()));
}

void Win32StatusBar::UseColors() {
  SendMessageW(Handle(), SB_SETBKCOLOR, 0,
               IsDark() ? static_cast<LPARAM>(Colors().face) : static_cast<LPARAM>(CLR_DEFAULT));
  ShowText();
}

void Win32StatusBar::OnDrawItem(const DRAWITEMSTRUCT& item) {
  const std::wstring text = ToWide(text_);
  RECT area = item.rcItem;
  SetDCBrushColor(item.hDC, Colors().face);
  FillRect(item.hDC, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, Colors().face_text);
  DrawTextW(item.hDC, text.c_str(), static_cast<int>(text.size()), &area,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

SIZE Win32StatusBar::NeededSize() const {
  constexpr int kAroundText = 8;
  return {0, TextSize("X").cy + Scaled(kAroundText, DotsPerInch())};
}

}  // namespace ferrowind::win32
