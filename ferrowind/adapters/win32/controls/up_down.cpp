#include "ferrowind/adapters/win32/controls/up_down.h"

#include <algorithm>
#include <utility>

#include "ferrowind/adapters/win32/base/twips.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {

Win32UpDown::Win32UpDown(ControlHost& host, std::string name, HWND parent)
    : Win32Control(host, std::move(name), {.window_class = UPDOWN_CLASSW, .style = 0, .parent = parent}) {
  // In the middle of its range, where it can always step both ways.
  SendMessageW(Handle(), UDM_SETRANGE32, 0, 2);
  SendMessageW(Handle(), UDM_SETPOS32, 0, 1);
}

void Win32UpDown::SetRange(std::int32_t lowest, std::int32_t highest, std::int32_t step) {
  if (lowest > highest || step < 1) throw platform::InvalidArgument();
  lowest_ = lowest;
  highest_ = highest;
  step_ = step;
  StepTo(value_);
}

void Win32UpDown::SetValue(std::int32_t value) {
  if (value < lowest_ || value > highest_) throw platform::InvalidArgument();
  value_ = value;
  RaiseEvent(changed_);
}

void Win32UpDown::StepTo(std::int64_t value) {
  const auto stepped =
      static_cast<std::int32_t>(std::clamp(value, std::int64_t{lowest_}, std::int64_t{highest_}));
  if (stepped == value_) return;
  value_ = stepped;
  RaiseEvent(changed_);
}

std::optional<LRESULT> Win32UpDown::OnNotify(NMHDR& header) {
  if (header.code != static_cast<UINT>(UDN_DELTAPOS)) return std::nullopt;
  const int delta = reinterpret_cast<const NMUPDOWN&>(header).iDelta;
  StepTo(std::int64_t{value_} + (delta > 0 ? step_ : -step_));
  constexpr LRESULT kKeepsItsOwn = 1;
  return kKeepsItsOwn;
}

SIZE Win32UpDown::NeededSize() const {
  constexpr int kWidth = 18;
  constexpr int kAroundText = 8;
  return {Scaled(kWidth, DotsPerInch()), TextSize("X").cy + Scaled(kAroundText, DotsPerInch())};
}

}  // namespace ferrowind::win32
