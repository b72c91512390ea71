#include "ferrowind/adapters/headless/headless_table.h"

#include <algorithm>
#include <utility>

namespace ferrowind::headless {

HeadlessTable::HeadlessTable(ControlHost& host, const platform::ControlDesign& design, std::string& clipboard)
    : HeadlessControl(host, design.name), design_(design), clipboard_(clipboard), content_(design.name) {}

void HeadlessTable::SetColumns(const std::vector<platform::TableColumn>& columns) {
  std::vector<std::string> keys;
  for (const auto& column : columns) keys.push_back(column.key);
  core_.Log().Record(Name() + ".SetColumns(" + ArgumentText(keys) + ")");
  const auto keep = core_.Keep();
  content_.SetColumns(columns);
  current_column_ = 0;
  selected_.clear();
  if (std::exchange(current_row_, std::nullopt)) current_changed_.Emit();
}

void HeadlessTable::SetRows(const std::vector<platform::TableRow>& rows) {
  core_.Log().Record(Name() + ".SetRows(" + std::to_string(rows.size()) + " rows)");
  const auto keep = core_.Keep();
  const std::size_t place = current_row_ ? content_.RowOf(*current_row_) : 0;
  content_.SetRows(rows);
  std::erase_if(selected_, [this](const std::string& row) { return !content_.FindRow(row); });
  const auto next = content_.Successor(current_row_, place);
  const auto next_row = next ? std::optional(content_.RowAt(*next).key) : std::nullopt;
  if (next_row == current_row_) return;
  current_row_ = next_row;
  if (next_row && selected_.empty()) selected_ = {*next_row};
  current_changed_.Emit();
}

std::optional<std::string> HeadlessTable::CurrentColumn() const {
  if (!design_.selects_cells || !current_row_) return std::nullopt;
  return content_.Columns()[current_column_].key;
}

void HeadlessTable::SetCurrentRow(const std::string& row) {
  core_.Record("SetCurrentRow", {row});
  const auto keep = core_.Keep();
  const std::size_t place = content_.RowOf(row);
  selected_ = {row};
  MakeCurrent(place, current_column_);
}

void HeadlessTable::SetCurrentColumn(const std::string& column) {
  core_.Record("SetCurrentColumn", {column});
  const auto keep = core_.Keep();
  const std::size_t place = content_.ColumnOf(column);
  if (!design_.selects_cells || place == current_column_) return;
  current_column_ = place;
  if (current_row_) current_changed_.Emit();
}

std::vector<std::string> HeadlessTable::SelectedRows() const {
  std::vector<std::string> rows = content_.Keys();
  std::erase_if(rows, [this](const std::string& row) {
    return std::find(selected_.begin(), selected_.end(), row) == selected_.end();
  });
  return rows;
}

bool HeadlessTable::Checked(const std::string& row) const {
  return content_.RowAt(content_.RowOf(row)).checked.value_or(false);
}

void HeadlessTable::SetChecked(const std::string& row, bool checked) {
  core_.Record("SetChecked", {row, checked});
  content_.SetChecked(content_.RowOf(row), checked);
}

std::vector<std::string> HeadlessTable::Texts(const std::string& row) const {
  std::vector<std::string> texts;
  const std::size_t place = content_.RowOf(row);
  for (std::size_t column = 0; column < content_.Columns().size(); ++column)
    texts.push_back(content_.CellAt(place, column).text);
  return texts;
}

// Input
// ---------------------------------------------------------------------------------------------------------

std::size_t HeadlessTable::RequireRow(const std::string& row) {
  const auto place = content_.FindRow(row);
  if (!place) core_.RaiseScriptError("The table " + Name() + " has no row " + row);
  return *place;
}

void HeadlessTable::MakeCurrent(std::size_t place, std::size_t column) {
  const std::string row = content_.RowAt(place).key;
  const bool is_same = current_row_ == row && (!design_.selects_cells || current_column_ == column);
  current_row_ = row;
  current_column_ = column;
  if (!is_same) current_changed_.Emit();
}

void HeadlessTable::ClickRow(const std::string& row, const std::string& column) {
  const auto keep = core_.BeginAction("ClickRow", {row});
  const std::size_t place = RequireRow(row);
  core_.TakeFocus();
  selected_ = {row};
  MakeCurrent(place, column.empty() ? current_column_ : content_.ColumnOf(column));
}

void HeadlessTable::ExtendToRow(const std::string& row) {
  const auto keep = core_.BeginAction("ExtendToRow", {row});
  if (!design_.selects_many) core_.RaiseScriptError("The table " + Name() + " selects one row at a time");
  const std::size_t to = RequireRow(row);
  const std::size_t from = current_row_ ? content_.RowOf(*current_row_) : to;
  core_.TakeFocus();
  selected_.clear();
  for (std::size_t place = std::min(from, to); place <= std::max(from, to); ++place)
    selected_.push_back(content_.RowAt(place).key);
  MakeCurrent(to, current_column_);
}

void HeadlessTable::ToggleRow(const std::string& row) {
  const auto keep = core_.BeginAction("ToggleRow", {row});
  if (!design_.selects_many) core_.RaiseScriptError("The table " + Name() + " selects one row at a time");
  const std::size_t place = RequireRow(row);
  core_.TakeFocus();
  if (std::erase(selected_, row) == 0) selected_.push_back(row);
  MakeCurrent(place, current_column_);
}

void HeadlessTable::DoubleClickRow(const std::string& row, const std::string& column) {
  const auto keep = core_.BeginAction("DoubleClickRow", {row});
  ClickRow(row, column);
  activated_.Emit();
}

void HeadlessTable::PressEnter() {
  const auto keep = core_.BeginAction("PressEnter");
  if (current_row_) activated_.Emit();
}

void HeadlessTable::PressSpace() {
  const auto keep = core_.BeginAction("PressSpace");
  if (!current_row_) return;
  const auto& box = Row(*current_row_).checked;
  if (!box) return;
  std::vector<std::string> rows = SelectedRows();
  if (std::find(rows.begin(), rows.end(), *current_row_) == rows.end()) rows = {*current_row_};
  Check(rows, !*box);
}

void HeadlessTable::ClickBox(const std::string& row) {
  const auto keep = core_.BeginAction("ClickBox", {row});
  const auto box = content_.RowAt(RequireRow(row)).checked;
  if (!box) core_.RaiseScriptError("The row " + row + " of the table " + Name() + " has no box");
  ClickRow(row);
  Check({row}, !*box);
}

void HeadlessTable::Check(const std::vector<std::string>& rows, bool checked) {
  std::vector<std::string> changed;
  for (const std::string& row : rows) {
    if (content_.SetChecked(content_.RowOf(row), checked)) changed.push_back(row);
  }
  for (const std::string& row : changed) check_changed_.Emit(row, checked);
}

void HeadlessTable::ClickHeader(const std::string& column) {
  const auto keep = core_.BeginAction("ClickHeader", {column});
  const std::size_t place = content_.ColumnOf(column);
  if (design_.sorts) content_.Sort(content_.SortingAfterClick(place));
}

void HeadlessTable::PressCopy() {
  const auto keep = core_.BeginAction("PressCopy");
  clipboard_ = content_.TextOf(SelectedRows());
}

}  // namespace ferrowind::headless
