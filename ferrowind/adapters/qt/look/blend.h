#pragma once

#include <QColor>

namespace ferrowind::qt {

/// The opaque colour that lies `share` (0 to 1) of the way from `from` to `to`.
[[nodiscard]] QColor Blend(const QColor& from, const QColor& to, double share);

}  // namespace ferrowind::qt
