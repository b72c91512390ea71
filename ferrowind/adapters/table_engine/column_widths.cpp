#include "ferrowind/adapters/table_engine/column_widths.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace ferrowind::table_engine {
namespace {

/// What a column keeps beside those that stretch and lack room: a date with its weekday and month in full is
/// no wider.
constexpr int kKeptBesideStretched = 240;
/// What a column that stretches keeps at least, where its cells are that wide.
constexpr int kLeastStretched = 140;
/// What a column keeps where there is not even that much room: of a name one still sees which one it is.
constexpr int kLeast = 92;

int WishOf(const ColumnWish& column) { return column.settled.value_or(column.fitting); }

/// What the column can do without, so that others can be read.
int SpareOf(const ColumnWish& column) {
  if (column.settled || column.stretches) return 0;
  return std::max(column.fitting - std::max(kKeptBesideStretched, column.caption), 0);
}

/// Gives the columns at `places` the room: as much to each where that is enough for all, else first to those
/// that need least.
void Stretch(int room, const std::vector<ColumnWish>& columns, std::vector<std::size_t> places,
             std::vector<int>& widths) {
  std::stable_sort(places.begin(), places.end(), [&](std::size_t left, std::size_t right) {
    return columns[left].fitting < columns[right].fitting;
  });
  int left = static_cast<int>(places.size());
  const bool all_fit = left > 0 && columns[places.back()].fitting <= room / left;
  for (const std::size_t place : places) {
    const int fitting = columns[place].fitting;
    const int share = room / left;
    const int taken = all_fit || left == 1 ? share : std::min(share, fitting);
    widths[place] = std::max(taken, std::min(fitting, kLeastStretched));
    room -= widths[place];
    --left;
  }
}

/// What is left of a width when none is wider than `most`, but for a caption.
int WidthUnder(int most, const ColumnWish& column, int width) {
  if (column.settled) return width;
  return std::min(width, std::max(most, column.caption));
}

int SumUnder(int most, const std::vector<ColumnWish>& columns, const std::vector<int>& widths) {
  int sum = 0;
  for (std::size_t place = 0; place < columns.size(); ++place)
    sum += WidthUnder(most, columns[place], widths[place]);
  return sum;
}

/// Has the widest columns give way until all are within the room, none below what each keeps at least.
void GiveWay(int room, const std::vector<ColumnWish>& columns, std::vector<int>& widths) {
  if (columns.empty()) return;
  int most = *std::max_element(widths.begin(), widths.end());
  if (SumUnder(most, columns, widths) <= room) return;
  while (most > kLeast && SumUnder(most, columns, widths) > room) --most;
  for (std::size_t place = 0; place < columns.size(); ++place)
    widths[place] = WidthUnder(most, columns[place], widths[place]);
}

}  // namespace

std::vector<int> WidthsWithin(int room, const std::vector<ColumnWish>& columns) {
  std::vector<int> widths;
  std::vector<std::size_t> stretched;
  int lacking = -room;
  int spare = 0;
  for (const ColumnWish& column : columns) {
    if (column.stretches && !column.settled) stretched.push_back(widths.size());
    widths.push_back(WishOf(column));
    lacking += WishOf(column);
    spare += SpareOf(column);
  }
  const bool stretches =
      std::any_of(columns.begin(), columns.end(), [](const auto& column) { return column.stretches; });
  if (!stretches) return widths;
  const int given = std::clamp(lacking, 0, spare);
  int left = room;
  for (std::size_t place = 0; place < columns.size(); ++place) {
    if (given > 0) widths[place] -= SpareOf(columns[place]) * given / spare;
    if (columns[place].settled || !columns[place].stretches) left -= widths[place];
  }
  Stretch(left, columns, std::move(stretched), widths);
  GiveWay(room, columns, widths);
  return widths;
}

}  // namespace ferrowind::table_engine
