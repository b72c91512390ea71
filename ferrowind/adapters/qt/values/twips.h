#pragma once

namespace ferrowind::qt {

/// Twips are 1440 an inch; a pixel is as many of them as the logical resolution of the primary screen makes
/// it.
[[nodiscard]] float TwipsPerPixelX();
[[nodiscard]] float TwipsPerPixelY();

/// Conversions of lengths. A length in twips is rounded to the nearest pixel and kept within what a window
/// system can place (32767 pixels either way), so that no setting, however absurd, overflows.
[[nodiscard]] int PixelsX(float twips);
[[nodiscard]] int PixelsY(float twips);
[[nodiscard]] float TwipsX(int pixels);
[[nodiscard]] float TwipsY(int pixels);

}  // namespace ferrowind::qt
