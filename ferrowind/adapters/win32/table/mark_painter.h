#pragma once

#include "ferrowind/adapters/win32/base/windows_api.h"
#include "ferrowind/platform/toolkit/table.h"

namespace ferrowind::win32 {

/// Draws a mark into the square of `side` pixels whose corner is `place`; nothing for none.
void PaintMark(HDC context, POINT place, LONG side, platform::CellMark mark, COLORREF color);

/// Draws the box of a row into such a square, with a check or without. `ground` is what lies
/// below it.
void PaintCheckBox(HDC context, POINT place, LONG side, bool is_checked, COLORREF color, COLORREF ground);

}  // namespace ferrowind::win32
