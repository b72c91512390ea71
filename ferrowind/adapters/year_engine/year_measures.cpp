#include "ferrowind/adapters/year_engine/year_measures.h"

#include <algorithm>

namespace ferrowind::year_engine {
namespace {

/// The share of a number's height that a mark beside it has.
constexpr double kMarkShare = 0.36;

}  // namespace

YearMeasures::YearMeasures(const YearFonts& fonts, bool has_rows)
    : line(fonts.number_height / 16),
      frame(2 * line),
      number_width(fonts.number_width),
      number_ascent(fonts.number_ascent),
      letter_size(fonts.letter),
      mark_size(number_ascent * kMarkShare),
      title_height(fonts.title_height * 1.2),
      header_height(fonts.small_height * 1.1),
      gap(fonts.number_height * 0.6) {
  if (!has_rows) {
    const double beside = std::max(letter_size.width, mark_size);
    least_cell = {number_width + beside + 2 * frame,
                  std::max(fonts.number_height * 1.08, letter_size.height + mark_size + 2 * frame)};
    widest_cell = {number_width * 3.4, fonts.number_height * 2};
    return;
  }
  least_cell = {fonts.small_number_width * 1.25, fonts.small_height * 1.15};
  widest_cell = {number_width * 2, fonts.number_height * 1.7};
  caption_width = fonts.widest_caption + fonts.blanks;
  note_width = fonts.widest_note == 0 ? 0 : fonts.widest_note + fonts.blanks;
}

DayPlaces::DayPlaces(const YearMeasures& measures, const Area& cell) {
  const double size = measures.mark_size;
  const Area inside{cell.left + measures.frame, cell.top + measures.frame, cell.width - 2 * measures.frame,
                    cell.height - 2 * measures.frame};
  const double side = (inside.width - measures.number_width) / 2;
  if (side >= std::max(measures.letter_size.width, size)) {
    number = {inside.left + side, inside.top, measures.number_width, inside.height};
    mark = {inside.left + (side - size) / 2, cell.Middle().y - size / 2, size, size};
    letter = {number.Right(), inside.top, side, inside.height};
  } else {
    // The letter has the room of both sides, and the mark stands below it.
    number = inside;
    number.width -= measures.letter_size.width;
    const double between = std::max(0.0, (inside.height - measures.letter_size.height - size) / 3);
    letter = {number.Right(), inside.top + between, measures.letter_size.width, measures.letter_size.height};
    mark = {letter.Middle().x - size / 2, letter.Bottom() + between, size, size};
  }
  // As far below the number as there is room.
  const double bottom = std::min(cell.Middle().y + measures.number_ascent * 0.72, inside.Bottom());
  bar = {number.Middle().x - size / 2, bottom - size, size, size};
}

}  // namespace ferrowind::year_engine
