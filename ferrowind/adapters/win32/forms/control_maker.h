#pragma once

#include <memory>

#include "ferrowind/adapters/win32/controls/control_host.h"
#include "ferrowind/platform/toolkit/control.h"
#include "ferrowind/platform/toolkit/form_design.h"

namespace ferrowind::win32 {

/// A control of that design in that window, with its first text. Never null, and always a `ControlWindow` as
/// well.
[[nodiscard]] std::unique_ptr<platform::Control> MakeControl(const platform::ControlDesign& design,
                                                             ControlHost& host, HWND parent);

}  // namespace ferrowind::win32
