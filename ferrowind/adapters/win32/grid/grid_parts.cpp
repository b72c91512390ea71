#include "ferrowind/adapters/win32/grid/grid_parts.h"

#include <algorithm>
#include <utility>

#include <oleacc.h>

#include "ferrowind/adapters/win32/base/wide_text.h"

namespace ferrowind::win32 {

GridParts::GridParts(const GridContent& content, const GridGeometry& geometry, const RowSelection& selection,
                     const Wording& words, std::function<void(std::uint32_t)> choose)
    : content_(content),
      geometry_(geometry),
      selection_(selection),
      words_(words),
      choose_(std::move(choose)) {}

LONG GridParts::WindowRole() const { return ROLE_SYSTEM_TABLE; }

LONG GridParts::ChipCount() const { return geometry_.IsBoxVisible() ? content_.GroupKeys().Count() : 0; }

std::vector<std::int16_t> GridParts::Columns() const {
  std::vector<std::int16_t> columns;
  for (const std::int16_t column : geometry_.Order()) {
    if (content_.Columns()[column].Visible()) columns.push_back(column);
  }
  return columns;
}

LONG GridParts::RowPart(std::uint32_t row) const {
  const auto columns = static_cast<LONG>(Columns().size());
  return HeaderPart(columns) + static_cast<LONG>(row) * (columns + 1);
}

LONG GridParts::PartCount() const { return RowPart(content_.Rows().RowCount()) - 1; }

AccessiblePart GridParts::PartAt(LONG part) const {
  const std::vector<std::int16_t> columns = Columns();
  if (part <= ChipCount()) return Chip(part);
  const LONG first_row = RowPart(0);
  if (part < first_row) return Header(columns[static_cast<std::size_t>(part - HeaderPart(0))]);
  const auto parts_per_row = static_cast<LONG>(columns.size()) + 1;
  const auto row = static_cast<std::uint32_t>((part - first_row) / parts_per_row);
  const LONG place = (part - first_row) % parts_per_row;
  return place == 0 ? Row(row) : Cell(row, columns[static_cast<std::size_t>(place) - 1]);
}

std::wstring GridParts::SaidOfOrder(std::int32_t order) const {
  if (order == platform::kSortAscending) return words_.Translated("sorted ascending");
  if (order == platform::kSortDescending) return words_.Translated("sorted descending");
  return {};
}

AccessiblePart GridParts::Chip(LONG position) const {
  const auto key = content_.GroupKeys().Item(static_cast<std::int32_t>(position));
  return {.name = words_.Translated("Group by") + L": " + ToWide(content_.Columns()[key->ColIndex].Caption()),
          .description = SaidOfOrder(key->SortOrder == platform::kSortDescending ? platform::kSortDescending
                                                                                 : platform::kSortAscending),
          .role = ROLE_SYSTEM_COLUMNHEADER,
          .area = geometry_.ChipArea(static_cast<std::int32_t>(position))};
}

AccessiblePart GridParts::Header(std::int16_t column) const {
  return {.name = ToWide(content_.Columns()[column].Caption()),
          .description = SaidOfOrder(content_.SortKeys().OrderOf(column)),
          .role = ROLE_SYSTEM_COLUMNHEADER,
          .area = geometry_.HeaderArea(column)};
}

LONG GridParts::StateOf(std::uint32_t row) const {
  LONG state = STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE;
  if (selection_.CurrentMode() == RowSelection::Mode::kMany) state |= STATE_SYSTEM_MULTISELECTABLE;
  if (selection_.IsChosen(row)) state |= STATE_SYSTEM_SELECTED;
  return state;
}

AccessiblePart GridParts::Row(std::uint32_t row) const {
  AccessiblePart part{.role = ROLE_SYSTEM_ROW, .state = StateOf(row), .area = geometry_.RowArea(row)};
  const auto shown = content_.Rows().RowAt(row);
  if (shown.is_group) {
    part.role = ROLE_SYSTEM_OUTLINEITEM;
    part.name = content_.LabelOf(shown.group);
    part.value = std::to_wstring(shown.group.level + 1);
    part.state |=
        content_.Rows().Groups().IsExpanded(shown.group) ? STATE_SYSTEM_EXPANDED : STATE_SYSTEM_COLLAPSED;
    return part;
  }
  const auto record = content_.Rows().RecordAt(shown.position);
  for (const std::int16_t column : Columns()) {
    const std::wstring text = content_.Cells().ShownText(column, record);
    if (text.empty()) continue;
    if (!part.name.empty()) part.name += L", ";
    part.name += ToWide(content_.Columns()[column].Caption()) + L": " + text;
  }
  return part;
}

AccessiblePart GridParts::Cell(std::uint32_t row, std::int16_t column) const {
  AccessiblePart part{.name = ToWide(content_.Columns()[column].Caption()),
                      .role = ROLE_SYSTEM_CELL,
                      .state = StateOf(row),
                      .area = geometry_.RowArea(row)};
  const RECT header = geometry_.HeaderArea(column);
  part.area.left = header.left;
  part.area.right = header.right;
  const auto record = content_.RecordInRow(row);
  if (record) part.value = content_.Cells().ShownText(column, *record);
  // What a group says is the row's.
  if (!record) part.state |= STATE_SYSTEM_INVISIBLE;
  return part;
}

LONG GridParts::PartUnder(POINT client) const {
  using Part = GridHit::Part;
  const GridHit hit = geometry_.HitAt(client);
  const std::vector<std::int16_t> columns = Columns();
  const auto place_of = [&](std::int16_t column) {
    return static_cast<LONG>(std::find(columns.begin(), columns.end(), column) - columns.begin());
  };
  switch (hit.part) {
    case Part::kChip:
      return static_cast<LONG>(hit.position);
    case Part::kHeader:
    case Part::kHeaderEdge:
      return HeaderPart(place_of(hit.column));
    case Part::kRow:
      break;
    default:
      return 0;
  }
  if (!content_.RecordInRow(hit.row)) return RowPart(hit.row);
  const auto under = std::find_if(columns.begin(), columns.end(), [&](std::int16_t column) {
    const RECT header = geometry_.HeaderArea(column);
    return client.x >= header.left && client.x < header.right;
  });
  return under == columns.end() ? RowPart(hit.row)
                                : CellPart(hit.row, static_cast<LONG>(under - columns.begin()));
}

LONG GridParts::CurrentPart() const { return selection_.Current() ? RowPart(*selection_.Current()) : 0; }

std::vector<LONG> GridParts::SelectedParts() const {
  std::vector<LONG> parts;
  for (const std::uint32_t row : selection_.Chosen()) parts.push_back(RowPart(row));
  std::sort(parts.begin(), parts.end());
  return parts;
}

void GridParts::ChoosePart(LONG part) {
  const LONG first_row = RowPart(0);
  if (part < first_row) return;
  choose_(static_cast<std::uint32_t>((part - first_row) / (static_cast<LONG>(Columns().size()) + 1)));
}

}  // namespace ferrowind::win32
