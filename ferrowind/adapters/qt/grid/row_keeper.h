#pragma once

#include <vector>

#include "ferrowind/adapters/grid_content/row_identity.h"

namespace ferrowind::qt {

class GridView;
class SelectionOrder;

/// The current row, the selection and the first visible row of a grid, told by what stands in the rows, so
/// that they can be put back after the rows were arranged anew.
class RowKeeper {
 public:
  RowKeeper(const GridView& view, const SelectionOrder& selection);

  /// A row that a collapsed group hides now passes to that group; selected ones are left out then.
  void PutBack(GridView& view, SelectionOrder& selection) const;

 private:
  grid_content::RowIdentity current_;
  grid_content::RowIdentity first_visible_;
  bool first_row_was_on_top_ = true;
  std::vector<grid_content::RowIdentity> selected_;
  bool was_all_selected_ = false;
};

}  // namespace ferrowind::qt
