#include "ferrowind/adapters/grid_content/row_formats.h"

#include <algorithm>

#include "ferrowind/adapters/grid_engine/value_order.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::grid_content {

using platform::GridFormat;
using platform::Value;

namespace {

bool Applies(const GridFormat& format, const StoredColumn& column, const Value& value) {
  if (const StoredValueList* values = column.Values()) {
    if (const std::string* shown = values->Find(value))
      return grid_engine::SameValue(*shown, format.compared);
    if (!value.IsObject()) return grid_engine::SameValue(platform::ToTextOrEmpty(value), format.compared);
  }
  return grid_engine::SameValue(value, format.compared);
}

}  // namespace

void RowFormats::Add(const GridFormat& format) {
  if (format.comparison != platform::kFormatEqual) throw platform::InvalidArgument();
  const auto found = std::find_if(formats_.begin(), formats_.end(),
                                  [&](const GridFormat& other) { return other.key == format.key; });
  if (found != formats_.end()) {
    *found = format;
  } else {
    formats_.push_back(format);
  }
}

bool RowFormats::CanBeBold() const {
  return std::any_of(formats_.begin(), formats_.end(),
                     [](const GridFormat& format) { return format.bold.value_or(false); });
}

RowLook RowFormats::LookOf(grid_engine::Record record, const RecordCells& cells,
                           const StoredColumns& columns) const {
  RowLook look;
  std::optional<bool> bold;
  std::optional<bool> strike_through;
  for (const GridFormat& format : formats_) {
    const StoredColumn* column = columns.Find(format.column_key);
    if (column == nullptr || !Applies(format, *column, cells.CellValue(column->Index(), record))) continue;
    if (!look.fore_color) look.fore_color = format.fore_color;
    if (!bold) bold = format.bold;
    if (!strike_through) strike_through = format.strike_through;
  }
  look.is_bold = bold.value_or(false);
  look.is_struck_through = strike_through.value_or(false);
  return look;
}

}  // namespace ferrowind::grid_content
