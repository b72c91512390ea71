#include "ferrowind/adapters/win32/controls/animation.h"

#include <algorithm>
#include <utility>

#include "ferrowind/adapters/win32/base/twips.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {
namespace {

constexpr UINT_PTR kFrameTimer = 1;

}  // namespace

Win32Animation::Win32Animation(ControlHost& host, std::string name, HWND parent)
    : Win32Control(host, std::move(name), {.window_class = PaneClass(), .style = 0, .parent = parent}) {}

void Win32Animation::Open(const std::string& path) {
  auto image = std::make_unique<AnimatedImage>(path);
  Stop();
  image_ = std::move(image);
  NeedsOtherRoom();
}

void Win32Animation::Play() {
  if (image_ == nullptr) {
    throw platform::Failure(platform::failure_number::kObjectNotSet,
                            "The animation " + ControlName() + " has no image open");
  }
  if (is_playing_) return;
  is_playing_ = true;
  SetTimer(Handle(), kFrameTimer, image_->Milliseconds(), nullptr);
  // What is waited for often runs in this very handler, with no message handled before it ends.
  RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

void Win32Animation::Stop() {
  is_playing_ = false;
  KillTimer(Handle(), kFrameTimer);
  InvalidateRect(Handle(), nullptr, TRUE);
}

LRESULT Win32Animation::OnMessage(UINT message, WPARAM w_param, LPARAM l_param) {
  if (message == WM_TIMER && w_param == kFrameTimer && is_playing_) {
    image_->Advance();
    SetTimer(Handle(), kFrameTimer, image_->Milliseconds(), nullptr);
    InvalidateRect(Handle(), nullptr, TRUE);
    return 0;
  }
  if (message == WM_PAINT && is_playing_) {
    PAINTSTRUCT paint{};
    const HDC context = BeginPaint(Handle(), &paint);
    RECT area{};
    GetClientRect(Handle(), &area);
    const SIZE size = image_->Size();
    image_->Draw(context, {(area.right - size.cx) / 2, (area.bottom - size.cy) / 2});
    EndPaint(Handle(), &paint);
    return 0;
  }
  return ControlWindow::OnMessage(message, w_param, l_param);
}

SIZE Win32Animation::NeededSize() const {
  constexpr int kSide = 32;
  const LONG side = Scaled(kSide, DotsPerInch());
  if (image_ == nullptr) return {side, side};
  return {std::max(side, image_->Size().cx), std::max(side, image_->Size().cy)};
}

}  // namespace ferrowind::win32
