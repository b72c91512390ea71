#include "ferrowind/adapters/win32/grid/row_copy.h"

#include <algorithm>

#include "ferrowind/adapters/win32/base/wide_text.h"

namespace ferrowind::win32 {
namespace {

/// A tab or a line break inside a cell would begin another one where the text is pasted.
std::wstring OnOneLine(std::wstring text) {
  for (wchar_t& letter : text) {
    if (letter == L'\t' || letter == L'\n' || letter == L'\r') letter = L' ';
  }
  return text;
}

std::wstring Line(const std::vector<std::wstring>& cells) {
  std::wstring line;
  for (const std::wstring& cell : cells) {
    if (&cell != cells.data()) line += L'\t';
    line += OnOneLine(cell);
  }
  return line + L'\n';
}

}  // namespace

std::wstring CopyOfRows(const GridContent& content, const std::vector<std::int16_t>& columns,
                        const std::vector<std::uint32_t>& rows, bool with_headers) {
  std::wstring text;
  std::vector<std::wstring> cells;
  if (with_headers) {
    for (const std::int16_t column : columns) cells.push_back(ToWide(content.Columns()[column].Caption()));
    text = Line(cells);
  }
  const bool has_records = std::any_of(
      rows.begin(), rows.end(), [&](std::uint32_t row) { return content.RecordInRow(row).has_value(); });
  for (const std::uint32_t row : rows) {
    const auto shown = content.Rows().RowAt(row);
    if (shown.is_group) {
      if (!has_records) text += Line({content.LabelOf(shown.group)});
      continue;
    }
    cells.clear();
    for (const std::int16_t column : columns)
      cells.push_back(content.Cells().ShownText(column, content.Rows().RecordAt(shown.position)));
    text += Line(cells);
  }
  return text;
}

}  // namespace ferrowind::win32
