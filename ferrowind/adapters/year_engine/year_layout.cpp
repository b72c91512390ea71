#include "ferrowind/adapters/year_engine/year_layout.h"

#include <algorithm>
#include <iterator>

namespace ferrowind::year_engine {
namespace {

constexpr int kMonths = 12;
/// The numbers of columns that leave no month alone.
constexpr std::array<int, 5> kColumnCounts = {6, 4, 3, 2, 1};

}  // namespace

YearLayout::YearLayout(const YearDays& days, const YearMeasures& measures, Reading reading, const Size& room)
    : reading_(reading), measures_(measures), calendars_(days.CalendarCount()) {
  for (int month = 1; month <= kMonths; ++month) {
    const platform::Date first(days.Year(), month, 1);
    MonthOfYear& of_year = months_[static_cast<std::size_t>(month) - 1];
    of_year.days_before = first.DayOfYear() - 1;
    of_year.first_column = (first.Weekday() - reading_.first_weekday + 7) % 7;
    const int days_up_to =
        month == kMonths ? days.DayCount() : platform::Date(days.Year(), month + 1, 1).DayOfYear() - 1;
    of_year.day_count = days_up_to - of_year.days_before;
  }
  // Of the numbers of columns that fit, the one with the largest days; where the height is too small for all,
  // the most columns that fit the width, so that there is the least to scroll.
  std::optional<int> best;
  double largest = 0;
  for (const int columns : kColumnCounts) {
    if (!TryColumns(columns, room)) continue;
    Settle(columns, room);
    const double area = std::min(cell_.width, cell_.height * 2);
    if (area > largest * 1.02) {
      largest = area;
      best = columns;
    }
  }
  if (!best) {
    fits_height_ = false;
    const double width = LeastBlock().width;
    best = 1;
    for (const int columns : kColumnCounts) {
      if (columns * width + (columns + 1) * measures_.gap > room.width) continue;
      best = columns;
      break;
    }
  }
  Settle(*best, room);
}

Size YearLayout::LeastBlock() const {
  return {measures_.caption_width + measures_.note_width + ColumnsOfDays() * measures_.least_cell.width,
          measures_.title_height + measures_.header_height + RowsOfDays() * measures_.least_cell.height};
}

bool YearLayout::TryColumns(int columns, const Size& room) const {
  const Size least = LeastBlock();
  const int rows = kMonths / columns;
  return columns * least.width + (columns + 1) * measures_.gap <= room.width &&
         rows * least.height + (rows + 1) * measures_.gap <= room.height;
}

void YearLayout::Settle(int columns, const Size& room) {
  columns_ = columns;
  const int rows = kMonths / columns;
  const double beside = measures_.caption_width + measures_.note_width;
  const double above = measures_.title_height + measures_.header_height;
  const double free_width = (room.width - (columns + 1) * measures_.gap) / columns - beside;
  const double free_height = (room.height - (rows + 1) * measures_.gap) / rows - above;
  // Where the height has to be scrolled anyway, days are not squeezed to the least of it.
  const bool is_scrolled = !fits_height_ && reading_.scrolls;
  const double least_height = is_scrolled ? measures_.least_cell.height * 1.15 : measures_.least_cell.height;
  cell_ = {std::clamp(free_width / ColumnsOfDays(), measures_.least_cell.width, measures_.widest_cell.width),
           std::clamp(free_height / RowsOfDays(), least_height,
                      std::max(least_height, measures_.widest_cell.height))};
  block_ = {beside + ColumnsOfDays() * cell_.width, above + RowsOfDays() * cell_.height};
  size_ = {std::max(room.width, columns * block_.width + (columns + 1) * measures_.gap),
           std::max(room.height, rows * block_.height + (rows + 1) * measures_.gap)};
}

Spot YearLayout::OriginOf(int month) const {
  const int rows = kMonths / columns_;
  const int column = (month - 1) % columns_;
  const int row = (month - 1) / columns_;
  // What is left over stands between the months.
  const double free_x = (size_.width - columns_ * block_.width) / (columns_ + 1);
  const double free_y = (size_.height - rows * block_.height) / (rows + 1);
  return {free_x + column * (block_.width + free_x), free_y + row * (block_.height + free_y)};
}

Area YearLayout::Placed(const Area& area) const {
  if (!reading_.is_right_to_left) return area;
  return {size_.width - area.Right(), area.top, area.width, area.height};
}

Area YearLayout::InMonth(int month, double x, double y, const Size& size) const {
  const Spot origin = OriginOf(month);
  return Placed({origin.x + x, origin.y + y, size.width, size.height});
}

Area YearLayout::MonthArea(int month) const { return InMonth(month, 0, 0, block_); }

Area YearLayout::TitleArea(int month) const {
  return InMonth(month, 0, 0, {HasRows() ? measures_.caption_width : block_.width, measures_.title_height});
}

Area YearLayout::NumberArea(int month, int column) const {
  return InMonth(month, measures_.caption_width + column * cell_.width, 0,
                 {cell_.width, measures_.title_height});
}

Area YearLayout::At(int month, int row, int column) const {
  return InMonth(month, measures_.caption_width + column * cell_.width,
                 measures_.title_height + measures_.header_height + row * cell_.height, cell_);
}

Area YearLayout::HeaderArea(int month, int column) const {
  return InMonth(month, measures_.caption_width + column * cell_.width, measures_.title_height,
                 {cell_.width, measures_.header_height});
}

Area YearLayout::CaptionArea(int month, int calendar) const {
  return InMonth(month, 0, measures_.title_height + measures_.header_height + calendar * cell_.height,
                 {measures_.caption_width, cell_.height});
}

Area YearLayout::NoteArea(int month, int calendar) const {
  return InMonth(month, block_.width - measures_.note_width,
                 measures_.title_height + measures_.header_height + calendar * cell_.height,
                 {measures_.note_width, cell_.height});
}

Area YearLayout::CellArea(const YearPlace& place) const {
  const auto after = std::upper_bound(
      months_.begin(), months_.end(), place.day - 1,
      [](int days_before, const MonthOfYear& month) { return days_before < month.days_before; });
  const MonthOfYear& of_year = *std::prev(after);
  const int month = static_cast<int>(after - months_.begin());
  const int day = place.day - 1 - of_year.days_before;
  if (HasRows()) return At(month, place.calendar, day);
  const int position = of_year.first_column + day;
  return At(month, position / 7, position % 7);
}

std::optional<int> YearLayout::MonthAt(const Spot& spot) const {
  for (int month = 1; month <= kMonths; ++month) {
    if (MonthArea(month).Contains(spot)) return month;
  }
  return std::nullopt;
}

std::optional<YearPlace> YearLayout::PlaceAt(const Spot& spot) const {
  const auto month = calendars_ == 0 ? std::nullopt : MonthAt(spot);
  if (!month) return std::nullopt;
  const MonthOfYear& of_year = MonthOf(*month);
  const Spot origin = OriginOf(*month);
  // Mirroring a mirrored place gives the place in the order of reading.
  const Area read = Placed({spot.x, spot.y, 0, 0});
  const double x = read.left - origin.x - measures_.caption_width;
  const double y = read.top - origin.y - measures_.title_height - measures_.header_height;
  if (x < 0 || y < 0) return std::nullopt;
  const int column = static_cast<int>(x / cell_.width);
  const int row = static_cast<int>(y / cell_.height);
  if (column >= ColumnsOfDays() || row >= RowsOfDays()) return std::nullopt;
  const int day = HasRows() ? column : row * 7 + column - of_year.first_column;
  if (day < 0 || day >= of_year.day_count) return std::nullopt;
  return YearPlace{HasRows() ? row : 0, of_year.days_before + day + 1};
}

}  // namespace ferrowind::year_engine
