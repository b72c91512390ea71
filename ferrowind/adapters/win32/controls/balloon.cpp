#include "ferrowind/adapters/win32/controls/balloon.h"

#include "ferrowind/adapters/win32/base/twips.h"

namespace ferrowind::win32 {

class Balloon::Tip final : public NativeWindow {
 public:
  explicit Tip(const NativeWindow& about)
      : NativeWindow(about.Site(), {.window_class = TOOLTIPS_CLASSW,
                                    .style = WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX | TTS_BALLOON,
                                    .extended_style = WS_EX_TOPMOST,
                                    .parent = GetAncestor(about.Handle(), GA_ROOT)}) {}
};

Balloon::Balloon(const NativeWindow& about) : about_(about) {}

Balloon::~Balloon() = default;

void Balloon::Show(const std::wstring& text) {
  Hide();
  tip_ = std::make_unique<Tip>(about_);
  std::wstring shown = text;
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V2_SIZE;
  tool.uFlags = TTF_TRACK | TTF_ABSOLUTE;
  tool.hwnd = about_.Handle();
  tool.lpszText = shown.data();
  SendMessageW(tip_->Handle(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  constexpr int kWidth = 320;
  SendMessageW(tip_->Handle(), TTM_SETMAXTIPWIDTH, 0, Scaled(kWidth, about_.DotsPerInch()));
  RECT area{};
  GetWindowRect(about_.Handle(), &area);
  constexpr int kIndent = 16;
  const LONG left = area.left + Scaled(kIndent, about_.DotsPerInch());
  SendMessageW(tip_->Handle(), TTM_TRACKPOSITION, 0, MAKELPARAM(left, area.bottom));
  SendMessageW(tip_->Handle(), TTM_TRACKACTIVATE, TRUE, reinterpret_cast<LPARAM>(&tool));
}

void Balloon::Hide() { tip_.reset(); }

}  // namespace ferrowind::win32
