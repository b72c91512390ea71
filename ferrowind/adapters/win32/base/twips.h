#pragma once

#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::win32 {

///@{
/// Between the component's twips (1440 an inch) and the pixels of a monitor of that resolution.
[[nodiscard]] int ToPixels(float twips, UINT dots_per_inch);
[[nodiscard]] float ToTwips(int pixels, UINT dots_per_inch);
///@}
/// A length that is designed in pixels of 96 to the inch.
[[nodiscard]] int Scaled(int length, UINT dots_per_inch);

}  // namespace ferrowind::win32
