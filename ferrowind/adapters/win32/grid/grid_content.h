#pragma once

#include <string>

#include "ferrowind/adapters/grid_content/arranged_content.h"
#include "ferrowind/adapters/win32/grid/grid_cells.h"

namespace ferrowind::win32 {

/// What a grid shows, apart from any window. Rows count from 0 here.
class GridContent : public grid_content::ArrangedContent<GridCells> {
 public:
  using ArrangedContent::ArrangedContent;

  /// What a group row says: "Type: Holiday (12)".
  [[nodiscard]] std::wstring LabelOf(grid_engine::GroupId group) const;
};

}  // namespace ferrowind::win32
