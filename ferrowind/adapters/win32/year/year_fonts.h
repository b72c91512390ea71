#pragma once

#include <string>

#include "ferrowind/adapters/win32/base/handles.h"
#include "ferrowind/adapters/year_engine/year_days.h"
#include "ferrowind/adapters/year_engine/year_measures.h"

namespace ferrowind::win32 {

/// The fonts of a year, and the room that its parts need, in the pixels of a device context.
struct YearType {
  /// `base` is the font of the days' numbers, which the others follow.
  YearType(HDC context, HFONT base, const year_engine::YearDays& days);

  HFONT number;
  UniqueFont title;
  UniqueFont small;
  /// Of the letters beside the numbers of days.
  UniqueFont letter;
  year_engine::YearMeasures measures;
};

/// A font of that size in pixels, as the platform's messages have it.
[[nodiscard]] UniqueFont MessageFont(LONG pixels, bool is_bold);

/// How wide a text is.
[[nodiscard]] double TextWidth(HDC context, HFONT font, const std::wstring& text);
/// How high a line of text is.
[[nodiscard]] double LineHeight(HDC context, HFONT font);

/// The pixels that an area covers; areas that touch do so in pixels, too.
[[nodiscard]] RECT PixelsOf(const year_engine::Area& area);

}  // namespace ferrowind::win32
