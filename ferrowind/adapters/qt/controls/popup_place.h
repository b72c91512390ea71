#pragma once

#include <QPoint>

namespace ferrowind::qt {

/// Where a popup menu opens, in screen coordinates: at the mouse, or below the focused widget's current item
/// when the last thing the operator pressed was a key. Keys are noticed from `NoticeKeys` on, which may be
/// called repeatedly.
[[nodiscard]] QPoint PopupPlace();
void NoticeKeys();

}  // namespace ferrowind::qt
