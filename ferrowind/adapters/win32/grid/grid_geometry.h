#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/adapters/win32/base/windows_api.h"
#include "ferrowind/adapters/win32/grid/grid_content.h"

namespace ferrowind::win32 {

/// What a point of a grid's window lies on.
struct GridHit {
  enum class Part { kNothing, kGroupBox, kChip, kHeader, kHeaderEdge, kRow, kBelowRows };
  Part part = Part::kNothing;
  /// Of a header or an edge: the column's 1-based index.
  std::int16_t column = 0;
  /// Of a chip: its 1-based position among the group keys.
  std::int32_t position = 0;
  std::uint32_t row = 0;
};

/// Where the parts of a grid stand in its window, in pixels: the box of its groups, its headers and its rows.
/// Rows count from 0, columns are meant by their 1-based index.
class GridGeometry {
 public:
  static constexpr LONG kUsualWidth = 80;

  explicit GridGeometry(const GridContent& content) : content_(content) {}

  /// Of a line of text, with the room around it.
  void SetLineHeight(LONG height) { line_height_ = height; }
  [[nodiscard]] LONG LineHeight() const { return line_height_; }
  void SetRoom(const SIZE& room) { room_ = room; }
  void SetBoxVisible(bool visible) { is_box_visible_ = visible; }
  [[nodiscard]] bool IsBoxVisible() const { return is_box_visible_; }

  // Columns
  /// Follows the columns of the content: new ones stand behind the others.
  void TakeColumns();
  [[nodiscard]] const std::vector<std::int16_t>& Order() const { return order_; }
  /// Both are columns of the grid.
  void MoveBehind(std::int16_t column, std::int16_t other);
  /// Before the column that stands at that place; behind all others at their end.
  void MoveTo(std::int16_t column, std::size_t place);
  /// 0 for a hidden column.
  [[nodiscard]] LONG WidthOf(std::int16_t column) const;
  /// That was set, also of a hidden column; nothing where none was, which gives it `kUsualWidth`.
  [[nodiscard]] std::optional<LONG> WidthSetFor(std::int16_t column) const;
  void SetWidth(std::int16_t column, LONG width);
  [[nodiscard]] LONG TotalWidth() const;

  // Chips
  /// In the order of the group keys.
  void SetChipWidths(std::vector<LONG> widths) { chip_widths_ = std::move(widths); }

  // Scrolling
  [[nodiscard]] std::uint32_t FirstRow() const { return first_row_; }
  /// Moved to where the last rows fill the window.
  void SetFirstRow(std::uint32_t row);
  [[nodiscard]] LONG ScrolledX() const { return scrolled_x_; }
  void SetScrolledX(LONG x);
  /// How many rows fit as a whole; at least one.
  [[nodiscard]] std::uint32_t RowsOnPage() const;

  // Places
  [[nodiscard]] RECT BoxArea() const;
  [[nodiscard]] RECT HeadersArea() const;
  [[nodiscard]] RECT RowsArea() const;
  [[nodiscard]] RECT ChipArea(std::int32_t position) const;
  /// Empty for a hidden column.
  [[nodiscard]] RECT HeaderArea(std::int16_t column) const;
  [[nodiscard]] RECT RowArea(std::uint32_t row) const;
  [[nodiscard]] LONG IndentOf(std::uint32_t level) const { return static_cast<LONG>(level) * line_height_; }

  [[nodiscard]] GridHit HitAt(POINT place) const;
  /// Where a header that is dropped there would stand, see `MoveTo`.
  [[nodiscard]] std::size_t PlaceAt(LONG x) const;
  /// The 1-based position among the group keys of what is dropped there; 0 behind all.
  [[nodiscard]] std::int32_t ChipPositionAt(LONG x) const;

 private:
  [[nodiscard]] bool IsVisible(std::int16_t column) const;

  const GridContent& content_;
  LONG line_height_ = 20;
  SIZE room_{};
  bool is_box_visible_ = false;
  std::vector<std::int16_t> order_;
  std::map<std::int16_t, LONG> widths_;
  std::vector<LONG> chip_widths_;
  std::uint32_t first_row_ = 0;
  LONG scrolled_x_ = 0;
};

}  // namespace ferrowind::win32
