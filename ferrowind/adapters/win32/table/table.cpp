#include "ferrowind/adapters/win32/table/table.h"

#include <algorithm>
#include <utility>

#include "ferrowind/adapters/win32/base/clipboard.h"
#include "ferrowind/adapters/win32/base/twips.h"
#include "ferrowind/adapters/win32/base/wide_text.h"

namespace ferrowind::win32 {

Win32Table::Win32Table(ControlHost& host, const platform::ControlDesign& design, HWND parent)
    : Win32Control(host, design.name,
                   {.window_class = PaneClass(),
                    .style = WS_TABSTOP | WS_VSCROLL | WS_HSCROLL,
                    .extended_style = WS_EX_CLIENTEDGE,
                    .parent = parent}),
      content_(
          ControlName(),
          [this](platform::CellMark mark) { return FromWide(Words().Translated(platform::WordOf(mark))); }),
      selects_cells_(design.selects_cells),
      selects_many_(design.selects_many),
      sorts_(design.sorts) {
  SetWindowTextW(Handle(), ToWide(ControlName()).c_str());
  selection_.SetMode(selects_many_ ? RowSelection::Mode::kMany : RowSelection::Mode::kOne);
}

// Content
// -------------------------------------------------------------------------------------------------------

void Win32Table::SetColumns(const std::vector<platform::TableColumn>& columns) {
  Change([&] {
    content_.SetColumns(columns);
    current_column_ = 0;
    geometry_.SetWidths(std::vector<LONG>(columns.size(), 0));
  });
  MeasureColumns(true);
}

void Win32Table::SetRows(const std::vector<platform::TableRow>& rows) {
  const bool was_empty = content_.RowCount() == 0;
  // Measured before anybody is told, who may replace them again.
  Change([&] {
    content_.SetRows(rows);
    MeasureColumns(was_empty);
  });
}

void Win32Table::SetEmptyText(const std::string& text) {
  empty_text_ = ToWide(text);
  Repaint();
}

void Win32Table::Change(const std::function<void()>& change) {
  const auto row = CurrentRow();
  const std::size_t place = selection_.Current().value_or(0);
  const std::vector<std::string> selected = SelectedRows();
  change();
  geometry_.SetRowCount(content_.RowCount());
  const auto next = content_.Successor(row, place);
  if (next && !content_.Columns().empty()) {
    std::vector<std::uint32_t> rows;
    for (const std::string& key : selected) {
      if (const auto found = content_.FindRow(key)) rows.push_back(static_cast<std::uint32_t>(*found));
    }
    selection_.PutBack(static_cast<std::uint32_t>(*next), std::move(rows));
    BringIntoSight();
  } else {
    selection_.ChooseOnly(std::nullopt);
  }
  ShowScrollBars();
  Repaint();
  accessible_.TellContent();
  TellCurrent();
}

std::optional<std::string> Win32Table::CurrentRow() const {
  const auto row = selection_.Current();
  if (!row || *row >= content_.RowCount()) return std::nullopt;
  return content_.RowAt(*row).key;
}

std::optional<std::string> Win32Table::CurrentColumn() const {
  if (!selects_cells_ || !CurrentRow()) return std::nullopt;
  return content_.Columns()[current_column_].key;
}

void Win32Table::GoTo(std::size_t row) {
  selection_.ChooseOnly(static_cast<std::uint32_t>(row));
  BringIntoSight();
  Repaint();
  TellCurrent();
}

void Win32Table::SetCurrentRow(const std::string& row) { GoTo(content_.RowOf(row)); }

void Win32Table::SetCurrentColumn(const std::string& column) {
  const std::size_t place = content_.ColumnOf(column);
  if (!selects_cells_ || !CurrentRow()) return;
  current_column_ = place;
  BringIntoSight();
  Repaint();
  TellCurrent();
}

std::vector<std::string> Win32Table::SelectedRows() const {
  std::vector<std::uint32_t> places = selection_.Chosen();
  std::sort(places.begin(), places.end());
  std::vector<std::string> rows;
  for (const std::uint32_t place : places) {
    if (place < content_.RowCount()) rows.push_back(content_.RowAt(place).key);
  }
  return rows;
}

void Win32Table::TellCurrent() {
  accessible_.TellSelection();
  Current now{CurrentRow(), CurrentColumn()};
  if (now == told_) return;
  told_ = std::move(now);
  accessible_.TellCurrent();
  RaiseEvent(current_changed_);
}

// Boxes, order and copies
// -------------------------------------------------------------------------------------------------------

bool Win32Table::Checked(const std::string& row) const {
  return content_.RowAt(content_.RowOf(row)).checked.value_or(false);
}

void Win32Table::SetChecked(const std::string& row, bool checked) {
  if (content_.SetChecked(content_.RowOf(row), checked)) Repaint();
}

void Win32Table::CheckSelected() {
  const auto current = CurrentRow();
  if (!current) return;
  const auto box = content_.RowAt(content_.RowOf(*current)).checked;
  if (!box) return;
  std::vector<std::string> rows = SelectedRows();
  if (std::find(rows.begin(), rows.end(), *current) == rows.end()) rows = {*current};
  Check(rows, !*box);
}

void Win32Table::Check(const std::vector<std::string>& rows, bool checked) {
  std::vector<std::string> changed;
  for (const std::string& row : rows) {
    if (content_.SetChecked(content_.RowOf(row), checked)) changed.push_back(row);
  }
  Repaint();
  for (const std::string& row : changed) RaiseEvent(check_changed_, row, checked);
}

void Win32Table::SortBy(std::size_t column) {
  if (sorts_) Change([&] { content_.Sort(content_.SortingAfterClick(column)); });
}

void Win32Table::Copy() const { PutOnClipboard(Handle(), ToWide(content_.TextOf(SelectedRows()))); }

SIZE Win32Table::NeededSize() const {
  constexpr int kWidth = 200;
  constexpr int kHeight = 120;
  return {Scaled(kWidth, DotsPerInch()), Scaled(kHeight, DotsPerInch())};
}

}  // namespace ferrowind::win32
