#pragma once

#include <QString>
#include <cstdint>

#include "ferrowind/adapters/grid_content/arranged_content.h"
#include "ferrowind/adapters/qt/grid/grid_cells.h"

namespace ferrowind::qt {

/// What a group row says.
struct GroupLabel {
  QString caption;
  QString value;
  std::uint32_t record_count = 0;
};

/// What a grid shows, apart from any widget. Rows count from 0 here.
class GridContent : public grid_content::ArrangedContent<GridCells> {
 public:
  using ArrangedContent::ArrangedContent;

  [[nodiscard]] GroupLabel LabelOf(grid_engine::GroupId group) const;
};

}  // namespace ferrowind::qt
