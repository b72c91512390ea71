#include "ferrowind/views/common/grid_reload.h"

#include <utility>

#include "ferrowind/views/common/update_lock.h"

namespace ferrowind {
namespace {

GridPosition PositionIn(const platform::Grid& grid) {
  if (!grid.Records()) return {};
  return {.current_row = grid.CurrentRow(),
          .first_visible_row = grid.FirstVisibleRow(),
          .current_column = grid.CurrentColumn()};
}

}  // namespace

GridReload::GridReload(platform::Toolkit& toolkit, platform::Grid& grid, platform::Element& locked,
                       PutBackRule put_back)
    : toolkit_(toolkit), grid_(grid), locked_(locked), put_back_(put_back) {}

void GridReload::Show(std::shared_ptr<platform::RecordSet> records, const std::function<void()>& prepare) {
  const GridPosition before = PositionIn(grid_);
  const UpdateLock lock(toolkit_, locked_);
  prepare();
  SaveGridKeys(grid_, sort_store_, group_store_);
  grid_.HoldColumns();
  grid_.AttachRecords(std::move(records));
  grid_.Rebind();
  RestoreGridKeys(grid_, sort_store_, group_store_);
  put_back_(grid_, before);
}

void GridReload::ShowNothing() {
  const UpdateLock lock(toolkit_, locked_);
  SaveGridKeys(grid_, sort_store_, group_store_);
  grid_.HoldColumns();
  grid_.AttachRecords(nullptr);
  RestoreGridKeys(grid_, sort_store_, group_store_);
}

}  // namespace ferrowind
