#include "ferrowind/adapters/win32/table/table_parts.h"

#include <algorithm>

#include <oleacc.h>

#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/table/cell_words.h"

namespace ferrowind::win32 {

LONG TableParts::WindowRole() const { return ROLE_SYSTEM_TABLE; }

std::wstring TableParts::WindowDescription() const {
  return subject_.content.RowCount() == 0 ? subject_.empty_text : std::wstring();
}

LONG TableParts::RowPart(std::size_t row) const {
  return ColumnCount() + 1 + static_cast<LONG>(row) * (ColumnCount() + 1);
}

LONG TableParts::PartCount() const { return RowPart(subject_.content.RowCount()) - 1; }

AccessiblePart TableParts::PartAt(LONG part) const {
  if (part <= ColumnCount()) return Header(static_cast<std::size_t>(part) - 1);
  const auto beyond = static_cast<std::size_t>(part - RowPart(0));
  const std::size_t parts_per_row = static_cast<std::size_t>(ColumnCount()) + 1;
  const std::size_t place = beyond % parts_per_row;
  return place == 0 ? Row(beyond / parts_per_row) : Cell(beyond / parts_per_row, place - 1);
}

AccessiblePart TableParts::Header(std::size_t column) const {
  AccessiblePart part{.name = ToWide(subject_.content.Columns()[column].caption),
                      .role = ROLE_SYSTEM_COLUMNHEADER,
                      .area = subject_.geometry.HeaderArea(column)};
  const auto& sorting = subject_.content.Sorted();
  if (sorting && sorting->column == column)
    part.description = sorting->is_descending ? subject_.words.Translated("sorted descending")
                                              : subject_.words.Translated("sorted ascending");
  return part;
}

LONG TableParts::StateOf(std::size_t row) const {
  LONG state = STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE;
  if (subject_.selection.CurrentMode() == RowSelection::Mode::kMany) state |= STATE_SYSTEM_MULTISELECTABLE;
  if (subject_.selection.IsChosen(static_cast<std::uint32_t>(row))) state |= STATE_SYSTEM_SELECTED;
  if (subject_.content.RowAt(row).checked.value_or(false)) state |= STATE_SYSTEM_CHECKED;
  return state;
}

AccessiblePart TableParts::Row(std::size_t row) const {
  AccessiblePart part{.role = ROLE_SYSTEM_ROW, .state = StateOf(row), .area = subject_.geometry.RowArea(row)};
  for (std::size_t column = 0; column < subject_.content.Columns().size(); ++column) {
    const platform::TableCell& cell = subject_.content.CellAt(row, column);
    const std::wstring said = SpokenText(cell, subject_.words);
    if (said.empty()) continue;
    if (!part.name.empty()) part.name += L", ";
    const std::wstring caption = ToWide(subject_.content.Columns()[column].caption);
    part.name += caption.empty() ? said : caption + L": " + said;
    if (cell.description.empty()) continue;
    if (!part.description.empty()) part.description += L" ";
    part.description += ToWide(cell.description);
  }
  return part;
}

AccessiblePart TableParts::Cell(std::size_t row, std::size_t column) const {
  const platform::TableCell& cell = subject_.content.CellAt(row, column);
  return {.name = ToWide(subject_.content.Columns()[column].caption),
          .value = SpokenText(cell, subject_.words),
          .description = ToWide(cell.description),
          .role = ROLE_SYSTEM_CELL,
          .state = StateOf(row),
          .area = subject_.geometry.CellArea(row, column)};
}

LONG TableParts::PartUnder(POINT client) const {
  const TableHit hit = subject_.geometry.HitAt(client);
  switch (hit.part) {
    case TableHit::Part::kHeader:
    case TableHit::Part::kHeaderEdge:
      return HeaderPart(hit.column);
    case TableHit::Part::kCell:
      return CellPart(hit.row, hit.column);
    case TableHit::Part::kNothing:
      break;
  }
  return 0;
}

LONG TableParts::CurrentPart() const {
  const auto row = subject_.selection.Current();
  if (!row) return 0;
  return subject_.current_column != nullptr ? CellPart(*row, *subject_.current_column) : RowPart(*row);
}

std::vector<LONG> TableParts::SelectedParts() const {
  std::vector<LONG> parts;
  for (const std::uint32_t row : subject_.selection.Chosen()) parts.push_back(RowPart(row));
  std::sort(parts.begin(), parts.end());
  return parts;
}

void TableParts::ChoosePart(LONG part) {
  if (part <= ColumnCount()) return;
  const auto beyond = static_cast<std::size_t>(part - RowPart(0));
  const std::size_t parts_per_row = static_cast<std::size_t>(ColumnCount()) + 1;
  const std::size_t place = beyond % parts_per_row;
  subject_.choose(beyond / parts_per_row, place == 0 ? 0 : place - 1);
}

}  // namespace ferrowind::win32
