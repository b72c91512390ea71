#pragma once

#include <QColor>

namespace ferrowind::qt {

/// What plain text needs, and what large or bold text, edges and marks need.
inline constexpr double kTextContrast = 4.5;
inline constexpr double kMarkContrast = 3.0;

/// How much light a colour gives, 0 (black) to 1 (white), as WCAG 2 defines the relative luminance.
[[nodiscard]] double Luminance(const QColor& color);
/// How well one colour is read on the other: 1 (not at all) to 21, as WCAG 2 defines the contrast ratio.
[[nodiscard]] double Contrast(const QColor& left, const QColor& right);
/// Whether light text is read on it.
[[nodiscard]] bool IsDarkGround(const QColor& background);

/// `color` as it is where it has the contrast `wanted` on `background`, else the nearest lighter or darker
/// shade of its hue that has.
[[nodiscard]] QColor ShadeReadableOn(const QColor& background, const QColor& color, double wanted);

}  // namespace ferrowind::qt
