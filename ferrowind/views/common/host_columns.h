#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "ferrowind/control/grid_fields.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/platform/toolkit/grid.h"

namespace ferrowind {

/// Keeps the columns of a window's grid as the host wants them while the window is open: captions, visibility
/// and the cells that the host computes.
class HostColumns {
 public:
  /// Both must outlive this object.
  HostColumns(const platform::Platform& platform, platform::Grid& grid) : platform_(platform), grid_(grid) {}

  /// Follows the columns of the map, which were set up in the grid, from now on. One that the map hides is
  /// hidden, whatever a layout said; of the others the layout decides. Called once.
  void Follow(const GridFields& map);

  /// Saves a layout by `save`, in which the columns that the map hides count as shown: once the host hides
  /// them no longer, no layout may.
  void SaveLayout(const std::function<void()>& save) const;

  /// The answer to the grid's question for a computed cell; columns that the host does not compute get none.
  void ComputeCell(platform::RecordSet::Bookmark bookmark, std::int16_t column,
                   platform::Value& receiver) const;

 private:
  struct Followed {
    std::shared_ptr<const GridField> field;
    platform::GridColumn& column;
    /// As the map had it last.
    bool is_visible = true;
  };

  static void Take(Followed& followed);

  const platform::Platform& platform_;
  platform::Grid& grid_;
  /// By the index of their column.
  std::map<std::int16_t, Followed> followed_;
  std::vector<platform::Subscription> changes_;
};

}  // namespace ferrowind
