#include "ferrowind/views/common/grid_setup.h"

namespace ferrowind {
namespace {

// What the grid takes for a column of text that is not edited in place, and for one that can be grouped by.
constexpr std::int32_t kTextColumn = 0;
constexpr std::int32_t kNotEdited = 1;
constexpr std::int32_t kGroupable = 1;

}  // namespace

bool SetupGridColumns(platform::Grid& grid, const GridFields& map) {
  try {
    const std::int32_t count = map.Count();
    for (std::int32_t i = 1; i <= count; ++i) {
      const auto entry = map.Fields(i);
      grid.AddColumn(entry->Caption(), kTextColumn, kNotEdited, entry->LocalName());
      platform::GridColumn& column = grid.ColumnByKey(entry->LocalName());
      column.SetBoundField(entry->FieldName());
      column.SetGroupable(kGroupable);
      column.SetVisible(entry->Visible());
    }
    return true;
  } catch (...) {
    return false;
  }
}

std::string FieldNameOf(const GridFields& map, const std::string& local_name) {
  return map.LocalNames(local_name)->FieldName();
}

}  // namespace ferrowind
