#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::win32 {

/// What a point of a table's window lies on. Rows and columns are places, counted from 0.
struct TableHit {
  enum class Part { kNothing, kHeader, kHeaderEdge, kCell };
  Part part = Part::kNothing;
  std::size_t row = 0;
  std::size_t column = 0;
};

/// Where the headers and cells of a table stand in its window, in pixels.
class TableGeometry {
 public:
  void SetLineHeight(LONG height) { line_height_ = height; }
  [[nodiscard]] LONG LineHeight() const { return line_height_; }
  void SetRoom(const SIZE& room) { room_ = room; }
  [[nodiscard]] const SIZE& Room() const { return room_; }
  void SetRowCount(std::size_t count);
  [[nodiscard]] std::size_t RowCount() const { return rows_; }
  void SetWidths(std::vector<LONG> widths);
  [[nodiscard]] const std::vector<LONG>& Widths() const { return widths_; }
  [[nodiscard]] LONG TotalWidth() const;

  [[nodiscard]] std::size_t FirstRow() const { return first_row_; }
  /// Moved to where the last rows fill the window.
  void SetFirstRow(std::size_t row);
  [[nodiscard]] LONG ScrolledX() const { return scrolled_x_; }
  void SetScrolledX(LONG x);
  /// How many rows fit as a whole; at least one.
  [[nodiscard]] std::size_t RowsOnPage() const;

  [[nodiscard]] RECT HeadersArea() const;
  [[nodiscard]] RECT RowsArea() const;
  [[nodiscard]] RECT HeaderArea(std::size_t column) const;
  [[nodiscard]] RECT RowArea(std::size_t row) const;
  [[nodiscard]] RECT CellArea(std::size_t row, std::size_t column) const;
  /// The box of a row, in its first cell.
  [[nodiscard]] RECT BoxArea(std::size_t row) const;
  /// The room between the edge of a cell and what stands in it.
  [[nodiscard]] LONG Pad() const { return line_height_ / 4; }
  /// Of boxes and marks, which are as high as wide.
  [[nodiscard]] LONG MarkSide() const { return line_height_ * 2 / 3; }

  [[nodiscard]] TableHit HitAt(POINT place) const;

 private:
  LONG line_height_ = 20;
  SIZE room_{};
  std::size_t rows_ = 0;
  std::vector<LONG> widths_;
  std::size_t first_row_ = 0;
  LONG scrolled_x_ = 0;
};

}  // namespace ferrowind::win32
