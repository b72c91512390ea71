#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "ferrowind/platform/toolkit/toolkit.h"
#include "ferrowind/platform/values/record_set.h"
#include "ferrowind/views/common/grid_keys.h"

namespace ferrowind {

/// Where the operator stood in a grid; zeros for a grid without records.
struct GridPosition {
  std::int32_t current_row = 0;
  std::int32_t first_visible_row = 0;
  std::int32_t current_column = 0;
};

/// Replaces the rows of a window's grid. Sort keys, grouping keys and the columns stay, and the grid is
/// painted once.
class GridReload {
 public:
  /// The window's rule of what is put back, and in which order, when the grid has its new rows.
  using PutBackRule = void (*)(platform::Grid& grid, const GridPosition& before);

  /// The updates of `locked` are locked meanwhile. All must outlive this object.
  GridReload(platform::Toolkit& toolkit, platform::Grid& grid, platform::Element& locked,
             PutBackRule put_back);

  /// Shows the records. `prepare` runs first thing under the lock.
  void Show(
      std::shared_ptr<platform::RecordSet> records, const std::function<void()>& prepare = [] {});
  /// Leaves the grid without rows.
  void ShowNothing();

 private:
  platform::Toolkit& toolkit_;
  platform::Grid& grid_;
  platform::Element& locked_;
  PutBackRule put_back_;
  KeyStore sort_store_;
  KeyStore group_store_;
};

}  // namespace ferrowind
