#include "ferrowind/adapters/win32/controls/label.h"

#include <utility>

#include "ferrowind/adapters/win32/base/wide_text.h"

namespace ferrowind::win32 {

Win32Label::Win32Label(ControlHost& host, std::string name, HWND parent)
    : Win32Control(host, std::move(name),
                   {.window_class = WC_STATICW, .style = SS_LEFT | SS_NOPREFIX, .parent = parent}) {}

void Win32Label::SetText(const std::string& text) {
  if (text == text_) return;
  text_ = text;
  SetWindowTextW(Handle(), ToWide(text).c_str());
  NeedsOtherRoom();
}

void Win32Label::Announce() {
  NotifyWinEvent(EVENT_OBJECT_LIVEREGIONCHANGED, Handle(), OBJID_CLIENT, CHILDID_SELF);
}

}  // namespace ferrowind::win32
