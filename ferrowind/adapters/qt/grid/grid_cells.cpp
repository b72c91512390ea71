#include "ferrowind/adapters/qt/grid/grid_cells.h"

#include <QLocale>

#include "ferrowind/adapters/qt/controls/element.h"
#include "ferrowind/adapters/qt/dates/short_date.h"
#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::qt {

using grid_engine::Record;
using platform::Value;

QString LocalizedText(const Value& value) {
  if (const auto* text = value.If<std::string>()) return ToQt(*text);
  if (const auto* date = value.If<platform::Date>()) return ShortDate(ToQt(*date), QLocale());
  if (const auto* fraction = value.If<double>()) {
    return QLocale().toString(*fraction, 'g', QLocale::FloatingPointShortest);
  }
  if (value.IsEmpty() || value.IsObject()) return {};
  return ToQt(platform::ToText(value));
}

GridCells::GridCells(const std::string& grid_name, const grid_content::StoredColumns& columns)
    : RecordCells(columns, [grid_name](const auto& handler) { RunGuarded(grid_name, handler); }) {}

QString GridCells::TextOfValue(std::int16_t column, const Value& value) const {
  if (const grid_content::StoredValueList* values = Columns()[column].Values()) {
    if (const std::string* text = values->Find(value)) return ToQt(*text);
  }
  return LocalizedText(value);
}

QString GridCells::ShownText(std::int16_t column, Record record) const {
  QString shown = TextOfValue(column, CellValue(column, record));
  if (!AsksForTexts()) return shown;
  std::string text = FromQt(shown);
  AskForText(column, record, text);
  return ToQt(text);
}

}  // namespace ferrowind::qt
