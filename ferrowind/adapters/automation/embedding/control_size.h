#pragma once

#include <windows.h>

namespace ferrowind::automation {

/// The control's width and height, which no container changes.
inline constexpr int kControlPixels = 16;

/// The same in hundredths of a millimetre of the screen. Its horizontal resolution counts for the height too.
[[nodiscard]] SIZEL ControlExtent();

/// Whether that is the control's size.
[[nodiscard]] bool IsControlSize(const RECT& pixels);

}  // namespace ferrowind::automation
