#pragma once

#include <cstdint>
#include <string>

#include "ferrowind/adapters/grid_content/record_cells.h"

namespace ferrowind::win32 {

/// The cells of a grid's records, and the texts shown for them. Columns are meant by their 1-based index.
class GridCells final : public grid_content::RecordCells {
 public:
  GridCells(const std::string& grid_name, const grid_content::StoredColumns& columns);

  /// The text of a cell as it is shown.
  [[nodiscard]] std::wstring ShownText(std::int16_t column, grid_engine::Record record) const;
  /// The text that the column shows for a value, before any handler of `CellText` has a say.
  [[nodiscard]] std::wstring TextOfValue(std::int16_t column, const platform::Value& value) const;
};

}  // namespace ferrowind::win32
