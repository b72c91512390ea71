#include "ferrowind/adapters/win32/grid/grid_content.h"

#include "ferrowind/adapters/win32/base/wide_text.h"

namespace ferrowind::win32 {

std::wstring GridContent::LabelOf(grid_engine::GroupId group) const {
  const std::int16_t column = Rows().GroupColumn(group.level);
  const std::wstring value =
      Cells().TextOfValue(column, Cells().CellValue(column, Rows().FirstRecordOf(group)));
  return ToWide(Columns()[column].Caption()) + L": " + value + L" (" +
         std::to_wstring(Rows().RecordCountOf(group)) + L")";
}

}  // namespace ferrowind::win32
