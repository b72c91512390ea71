#include "ferrowind/adapters/grid_content/computed_cells.h"

namespace ferrowind::grid_content {

const platform::Value& ComputedCells::ValueOf(grid_engine::Record record, std::int16_t column) const {
  std::vector<std::unique_ptr<Page>>& pages = columns_[column];
  const std::uint32_t number = record / kPageSize;
  if (number >= pages.size()) pages.resize(number + 1);
  if (pages[number] == nullptr) pages[number] = std::make_unique<Page>();
  Page& page = *pages[number];
  const std::uint32_t place = record % kPageSize;
  if (!page.is_known[place]) {
    compute_(record, column, page.values[place]);
    page.is_known[place] = true;
  }
  return page.values[place];
}

}  // namespace ferrowind::grid_content
