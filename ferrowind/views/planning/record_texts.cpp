#include "ferrowind/views/planning/record_texts.h"

#include "ferrowind/data/ignoring_failure.h"

namespace ferrowind {

using platform::Date;
using platform::RecordSet;
using platform::Value;

RecordTexts::RecordTexts(platform::Grid& grid, const RecordSet& records, const Names& names) : names_(names) {
  for (std::int32_t index = 1; index <= grid.ColumnCount(); ++index) {
    platform::GridColumn& column = grid.ColumnAt(index);
    if (column.Unbound()) continue;
    if (const auto field = records.FindField(column.BoundField())) {
      columns_.push_back({*field, column.ValueList()});
    }
  }
}

std::string RecordTexts::Of(const RecordSet& records, RecordSet::Bookmark record) const {
  std::string text;
  for (const Column& column : columns_) {
    const Value& value = records.Cell(record, column.field);
    // A number that has no name is the database's own business.
    if (column.names != nullptr) {
      IgnoringFailure([&] { text += column.names->TextOf(value) + " "; });
    } else if (const auto* const date = value.If<Date>()) {
      text += names_.of_date(*date) + " ";
    } else if (const auto* const words = value.If<std::string>()) {
      text += *words + " ";
    }
  }
  if (names_.more) text += names_.more(records, record);
  return text;
}

}  // namespace ferrowind
