#pragma once

#include <windows.h>

namespace ferrowind::automation {

/// Draws what stands for the control while a form is designed, a leaf of a calendar. `bounds` are in the
/// units of the device context, which may be a metafile's.
void DrawDesignPicture(HDC context, const RECT& bounds);

}  // namespace ferrowind::automation
