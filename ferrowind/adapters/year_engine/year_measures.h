#pragma once

#include "ferrowind/adapters/year_engine/areas.h"

namespace ferrowind::year_engine {

/// How large the letters of a year's fonts are: that of the days' numbers, a bold one of titles, a small one
/// and that of the letters beside the numbers.
struct YearFonts {
  double number_height = 0;
  double number_ascent = 0;
  /// Of the numbers of days; the widest of them.
  double number_width = 0;
  double small_number_width = 0;
  double small_height = 0;
  double title_height = 0;
  /// Of the letters beside the numbers, without what letters have above and below; the largest.
  Size letter;
  // With rows only: the widest caption of a row or name of a month, the widest note, and two blanks.
  double widest_caption = 0;
  double widest_note = 0;
  double blanks = 0;
};

/// The room that the parts of a year need at least.
struct YearMeasures {
  YearMeasures() = default;
  /// Of one calendar's months of weeks, or of months with a row for each of several calendars.
  YearMeasures(const YearFonts& fonts, bool has_rows);

  /// The width of a line that is as thick as a pixel of an ordinary screen.
  double line = 0;
  /// How thick the frame of the current day is.
  double frame = 0;
  double number_width = 0;
  double number_ascent = 0;
  Size letter_size;
  /// Of the marks of days, which are as high as wide.
  double mark_size = 0;
  Size least_cell;
  Size widest_cell;
  double title_height = 0;
  double header_height = 0;
  /// Beside the days of a row; 0 without rows.
  double caption_width = 0;
  double note_width = 0;
  double gap = 0;
};

/// Where the parts of a day stand in its cell, in a month of weeks. None touches another or the frame of the
/// current day, in any cell of at least the least size.
struct DayPlaces {
  DayPlaces(const YearMeasures& measures, const Area& cell);

  /// The number is in its middle.
  Area number;
  /// A letter is in its middle.
  Area letter;
  /// Of a mark beside the number.
  Area mark;
  /// Of a bar below the number.
  Area bar;
};

}  // namespace ferrowind::year_engine
