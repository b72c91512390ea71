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
  SendMessageW(Handle(), SB_SETTEXTW, 0, reinterpret_cast<LPARAM>(ToWide(text).c_str()));
}

SIZE Win32StatusBar::NeededSize() const {
  constexpr int kAroundText = 8;
  return {0, TextSize("X").cy + Scaled(kAroundText, DotsPerInch())};
}

}  // namespace ferrowind::win32
