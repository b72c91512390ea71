#include "ferrowind/adapters/win32/grid/grid_geometry.h"

#include <algorithm>
#include <iterator>

namespace ferrowind::win32 {
namespace {

constexpr LONG kLeastWidth = 16;
constexpr LONG kChipGap = 6;
/// How near to the edge of a header the mouse takes the edge.
constexpr LONG kEdgeReach = 4;

}  // namespace

void GridGeometry::TakeColumns() {
  const std::int32_t count = content_.Columns().Count();
  std::erase_if(order_, [&](std::int16_t column) { return column > count; });
  std::erase_if(widths_, [&](const auto& width) { return width.first > count; });
  for (auto column = static_cast<std::int16_t>(order_.size() + 1); column <= count; ++column)
    order_.push_back(column);
}

void GridGeometry::MoveBehind(std::int16_t column, std::int16_t other) {
  if (column == other) return;
  std::erase(order_, column);
  order_.insert(std::next(std::find(order_.begin(), order_.end(), other)), column);
}

void GridGeometry::MoveTo(std::int16_t column, std::size_t place) {
  const auto from =
      static_cast<std::size_t>(std::find(order_.begin(), order_.end(), column) - order_.begin());
  std::erase(order_, column);
  if (place > from) --place;
  order_.insert(order_.begin() + static_cast<std::ptrdiff_t>(std::min(place, order_.size())), column);
}

bool GridGeometry::IsVisible(std::int16_t column) const { return content_.Columns()[column].Visible(); }

LONG GridGeometry::WidthOf(std::int16_t column) const {
  return IsVisible(column) ? WidthSetFor(column).value_or(kUsualWidth) : 0;
}

std::optional<LONG> GridGeometry::WidthSetFor(std::int16_t column) const {
  const auto found = widths_.find(column);
  return found == widths_.end() ? std::nullopt : std::optional<LONG>(found->second);
}

void GridGeometry::SetWidth(std::int16_t column, LONG width) {
  widths_[column] = std::max(kLeastWidth, width);
}

LONG GridGeometry::TotalWidth() const {
  LONG width = IndentOf(content_.Rows().Groups().LevelCount());
  for (const std::int16_t column : order_) width += WidthOf(column);
  return width;
}

void GridGeometry::SetFirstRow(std::uint32_t row) {
  const std::uint32_t count = content_.Rows().RowCount();
  const std::uint32_t page = RowsOnPage();
  first_row_ = std::min(row, count > page ? count - page : 0);
}

void GridGeometry::SetScrolledX(LONG x) {
  const LONG most = std::max<LONG>(0, TotalWidth() - room_.cx);
  scrolled_x_ = std::clamp<LONG>(x, 0, most);
}

std::uint32_t GridGeometry::RowsOnPage() const {
  const RECT area = RowsArea();
  return static_cast<std::uint32_t>(std::max<LONG>(1, (area.bottom - area.top) / line_height_));
}

RECT GridGeometry::BoxArea() const { return {0, 0, room_.cx, is_box_visible_ ? 2 * line_height_ : 0}; }

RECT GridGeometry::HeadersArea() const {
  const LONG top = BoxArea().bottom;
  return {0, top, room_.cx, top + line_height_ + 4};
}

RECT GridGeometry::RowsArea() const {
  const LONG top = HeadersArea().bottom;
  return {0, top, room_.cx, std::max(top, room_.cy)};
}

RECT GridGeometry::ChipArea(std::int32_t position) const {
  LONG x = kChipGap;
  for (std::int32_t before = 1; before < position; ++before)
    x += chip_widths_[static_cast<std::size_t>(before) - 1] + kChipGap;
  const LONG width = chip_widths_[static_cast<std::size_t>(position) - 1];
  return {x, line_height_ / 2 - 1, x + width, line_height_ / 2 + line_height_ + 1};
}

RECT GridGeometry::HeaderArea(std::int16_t column) const {
  RECT area = HeadersArea();
  area.left = IndentOf(content_.Rows().Groups().LevelCount()) - scrolled_x_;
  for (const std::int16_t shown : order_) {
    if (shown == column) break;
    area.left += WidthOf(shown);
  }
  area.right = area.left + WidthOf(column);
  return area;
}

RECT GridGeometry::RowArea(std::uint32_t row) const {
  RECT area = RowsArea();
  area.top += (static_cast<LONG>(row) - static_cast<LONG>(first_row_)) * line_height_;
  area.bottom = area.top + line_height_;
  return area;
}

GridHit GridGeometry::HitAt(POINT place) const {
  using Part = GridHit::Part;
  const RECT box = BoxArea();
  if (PtInRect(&box, place) != 0) {
    for (std::int32_t position = 1; position <= static_cast<std::int32_t>(chip_widths_.size()); ++position) {
      const RECT chip = ChipArea(position);
      if (PtInRect(&chip, place) != 0) return {.part = Part::kChip, .position = position};
    }
    return {.part = Part::kGroupBox};
  }
  if (place.y < 0 || place.x < 0 || place.x >= room_.cx || place.y >= room_.cy) return {};
  if (place.y < HeadersArea().bottom) {
    for (const std::int16_t column : order_) {
      const RECT header = HeaderArea(column);
      if (header.right == header.left) continue;
      if (place.x >= header.right - kEdgeReach && place.x < header.right + kEdgeReach)
        return {.part = Part::kHeaderEdge, .column = column};
      if (PtInRect(&header, place) != 0) return {.part = Part::kHeader, .column = column};
    }
    return {};
  }
  const auto row = first_row_ + static_cast<std::uint32_t>((place.y - RowsArea().top) / line_height_);
  if (row >= content_.Rows().RowCount()) return {.part = Part::kBelowRows};
  return {.part = Part::kRow, .row = row};
}

std::size_t GridGeometry::PlaceAt(LONG x) const {
  std::size_t place = 0;
  for (; place < order_.size(); ++place) {
    const RECT header = HeaderArea(order_[place]);
    if (IsVisible(order_[place]) && x < (header.left + header.right) / 2) break;
  }
  return place;
}

std::int32_t GridGeometry::ChipPositionAt(LONG x) const {
  for (std::int32_t position = 1; position <= static_cast<std::int32_t>(chip_widths_.size()); ++position) {
    const RECT chip = ChipArea(position);
    if (x < (chip.left + chip.right) / 2) return position;
  }
  return 0;
}

}  // namespace ferrowind::win32
