#include "ferrowind/adapters/qt/grid/grid_content.h"

#include "ferrowind/adapters/qt/values/qt_text.h"

namespace ferrowind::qt {

GroupLabel GridContent::LabelOf(grid_engine::GroupId group) const {
  const std::int16_t column = Rows().GroupColumn(group.level);
  return {ToQt(Columns()[column].Caption()),
          Cells().TextOfValue(column, Cells().CellValue(column, Rows().FirstRecordOf(group))),
          Rows().RecordCountOf(group)};
}

}  // namespace ferrowind::qt
