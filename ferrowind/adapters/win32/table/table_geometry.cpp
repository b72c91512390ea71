#include "ferrowind/adapters/win32/table/table_geometry.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace ferrowind::win32 {
namespace {

/// How near to the edge of a header the mouse takes the edge.
constexpr LONG kEdgeReach = 4;

}  // namespace

void TableGeometry::SetRowCount(std::size_t count) {
  rows_ = count;
  SetFirstRow(first_row_);
}

void TableGeometry::SetWidths(std::vector<LONG> widths) {
  widths_ = std::move(widths);
  SetScrolledX(scrolled_x_);
}

LONG TableGeometry::TotalWidth() const { return std::accumulate(widths_.begin(), widths_.end(), LONG{0}); }

void TableGeometry::SetFirstRow(std::size_t row) {
  const std::size_t page = RowsOnPage();
  first_row_ = std::min(row, rows_ > page ? rows_ - page : 0);
}

void TableGeometry::SetScrolledX(LONG x) {
  scrolled_x_ = std::clamp<LONG>(x, 0, std::max<LONG>(0, TotalWidth() - room_.cx));
}

std::size_t TableGeometry::RowsOnPage() const {
  const RECT area = RowsArea();
  return static_cast<std::size_t>(std::max<LONG>(1, (area.bottom - area.top) / line_height_));
}

RECT TableGeometry::HeadersArea() const { return {0, 0, room_.cx, line_height_ + 4}; }

RECT TableGeometry::RowsArea() const {
  const LONG top = HeadersArea().bottom;
  return {0, top, room_.cx, std::max(top, room_.cy)};
}

RECT TableGeometry::HeaderArea(std::size_t column) const {
  RECT area = HeadersArea();
  const auto at = widths_.begin() + static_cast<std::ptrdiff_t>(column);
  area.left = std::accumulate(widths_.begin(), at, LONG{0}) - scrolled_x_;
  area.right = area.left + *at;
  return area;
}

RECT TableGeometry::RowArea(std::size_t row) const {
  RECT area = RowsArea();
  area.top += (static_cast<LONG>(row) - static_cast<LONG>(first_row_)) * line_height_;
  area.bottom = area.top + line_height_;
  return area;
}

RECT TableGeometry::CellArea(std::size_t row, std::size_t column) const {
  RECT area = RowArea(row);
  const RECT header = HeaderArea(column);
  area.left = header.left;
  area.right = header.right;
  return area;
}

RECT TableGeometry::BoxArea(std::size_t row) const {
  const RECT cell = CellArea(row, 0);
  const LONG top = (cell.top + cell.bottom - MarkSide()) / 2;
  return {cell.left + Pad(), top, cell.left + Pad() + MarkSide(), top + MarkSide()};
}

TableHit TableGeometry::HitAt(POINT place) const {
  using Part = TableHit::Part;
  if (place.x < 0 || place.y < 0 || place.x >= room_.cx || place.y >= room_.cy) return {};
  const bool is_header = place.y < HeadersArea().bottom;
  const auto row =
      first_row_ + static_cast<std::size_t>(std::max<LONG>(0, place.y - RowsArea().top) / line_height_);
  for (std::size_t column = 0; column < widths_.size(); ++column) {
    const RECT header = HeaderArea(column);
    const bool is_edge = place.x >= header.right - kEdgeReach && place.x < header.right + kEdgeReach;
    if (is_header && is_edge) return {.part = Part::kHeaderEdge, .column = column};
    if (place.x < header.left || place.x >= header.right) continue;
    if (is_header) return {.part = Part::kHeader, .column = column};
    if (row < rows_) return {.part = Part::kCell, .row = row, .column = column};
  }
  return {};
}

}  // namespace ferrowind::win32
