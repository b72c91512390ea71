#include "ferrowind/adapters/win32/grid/grid_cells.h"

#include <array>

#include "ferrowind/adapters/win32/base/run_guarded.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/base/windows_api.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::win32 {

using grid_engine::Record;
using platform::Value;

namespace {

std::wstring ShortDate(const platform::Date& date) {
  SYSTEMTIME time{};
  time.wYear = static_cast<WORD>(date.Year());
  time.wMonth = static_cast<WORD>(date.Month());
  time.wDay = static_cast<WORD>(date.Day());
  std::array<wchar_t, 80> text{};
  const int length = GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &time, nullptr, text.data(),
                                     static_cast<int>(text.size()), nullptr);
  // The platform's calendar does not go back to the first years.
  return length > 0 ? std::wstring(text.data()) : ToWide(date.ToIso());
}

std::wstring LocalizedText(const Value& value) {
  if (const auto* date = value.If<platform::Date>()) return ShortDate(*date);
  return value.IsObject() ? std::wstring() : ToWide(platform::ToTextOrEmpty(value));
}

}  // namespace

GridCells::GridCells(const std::string& grid_name, const grid_content::StoredColumns& columns)
    : RecordCells(columns, [grid_name](const auto& handler) { RunGuarded(grid_name, handler); }) {}

std::wstring GridCells::TextOfValue(std::int16_t column, const Value& value) const {
  if (const grid_content::StoredValueList* values = Columns()[column].Values()) {
    if (const std::string* text = values->Find(value)) return ToWide(*text);
  }
  return LocalizedText(value);
}

std::wstring GridCells::ShownText(std::int16_t column, Record record) const {
  std::wstring shown = TextOfValue(column, CellValue(column, record));
  if (!AsksForTexts()) return shown;
  std::string text = FromWide(shown);
  AskForText(column, record, text);
  return ToWide(text);
}

}  // namespace ferrowind::win32
