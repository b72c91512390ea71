#include "ferrowind/adapters/win32/grid/grid.h"

#include <algorithm>
#include <utility>

#include "ferrowind/adapters/win32/base/handles.h"
#include "ferrowind/adapters/win32/base/twips.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/grid/grid_painter.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {

using grid_content::RowIdentity;
using platform::RecordSet;
using platform::Value;

Win32Grid::Win32Grid(ControlHost& host, std::string name, HWND parent, bool marks_row_ranges)
    : Win32Control(host, std::move(name),
                   {.window_class = PaneClass(),
                    .style = WS_TABSTOP | WS_VSCROLL | WS_HSCROLL,
                    .extended_style = WS_EX_CLIENTEDGE,
                    .parent = parent}),
      content_(ControlName(), MakeListener()),
      operations_(content_.Columns(), content_.SortKeys(), content_.GroupKeys(),
                  {[this] { Refresh(false); }, [this] { RaiseEvent(before_group_change_); },
                   [this] { RefreshAfterGroupChange(); }}),
      geometry_(content_),
      marks_row_ranges_(marks_row_ranges) {
  SetWindowTextW(Handle(), ToWide(ControlName()).c_str());
  SetMultiSelect(false);
}

GridContent::Listener Win32Grid::MakeListener() {
  return {.column_visibility_changed = [this](grid_content::StoredColumn&) { Resized(); },
          .cells_changed =
              [this] {
                is_stale_ = true;
                Repaint();
              },
          .keys_changed = [this] { is_stale_ = true; },
          .captions_changed = [this] { ShowKeys(); }};
}

void Win32Grid::Mute() {
  ControlWindow::Mute();
  content_.Cells().Mute();
}

// Columns
// -------------------------------------------------------------------------------------------------------

platform::GridColumn& Win32Grid::AddColumn(const std::string& caption, std::int32_t type,
                                           std::int32_t edit_type, const std::string& key) {
  content_.Columns().RequireAddable(type, edit_type, key);
  platform::GridColumn& added = content_.Columns().Add(caption, key);
  content_.Cells().BindFields();
  geometry_.TakeColumns();
  Resized();
  return added;
}

std::vector<std::string> Win32Grid::ColumnOrder() const {
  std::vector<std::string> keys;
  for (const std::int16_t column : geometry_.Order()) keys.push_back(content_.Columns()[column].Key());
  return keys;
}

void Win32Grid::MoveColumnBehind(const std::string& key, const std::string& other) {
  geometry_.MoveBehind(content_.Columns().ByKey(key).Index(), content_.Columns().ByKey(other).Index());
  Repaint();
}

void Win32Grid::FitColumns() {
  // Enough to judge what the others are like.
  constexpr std::uint32_t kRecordsMeasured = 60;
  constexpr int kBesideText = 18;
  const auto count = std::min(content_.Cells().RecordCount(), kRecordsMeasured);
  const WindowContext context(Handle());
  const GridPainter painter(context.Get(), Font(), {content_, geometry_, selection_, Colors(), Words()});
  for (const std::int16_t column : geometry_.Order()) {
    if (settled_widths_.contains(column)) continue;
    // Room for the arrow of a sorted column.
    LONG width = TextSize(content_.Columns()[column].Caption()).cx + geometry_.LineHeight() / 2;
    for (grid_engine::Record record = 0; record < count; ++record)
      width = std::max(width, painter.TextWidthOf(column, record));
    geometry_.SetWidth(column, width + Scaled(kBesideText, DotsPerInch()));
  }
}

// Records
// -------------------------------------------------------------------------------------------------------

void Win32Grid::AttachRecords(std::shared_ptr<RecordSet> records) {
  selection_.ChooseOnly(std::nullopt);
  content_.Attach(std::move(records));
  geometry_.TakeColumns();
  std::erase_if(settled_widths_, [this](std::int16_t column) { return column > ColumnCount(); });
  geometry_.SetFirstRow(0);
  current_column_ = std::min(current_column_, ColumnCount());
  is_stale_ = false;
  accessible_.TellContent();
  ShowKeys();
  Resized();
  NoteCurrentRow();
}

void Win32Grid::Narrow(RowChoice choose) {
  RearrangeRows([&] { content_.Narrow(std::move(choose)); });
}

void Win32Grid::Rebind() {
  RearrangeRows([this] { content_.Rebind(); });
  FitColumns();
  ScrollTo(0);
}

void Win32Grid::Refresh(bool recompute) {
  RearrangeRows([&] { content_.Arrange(recompute); });
  is_stale_ = false;
}

void Win32Grid::RearrangeRows(const std::function<void()>& change) {
  const auto identity_of = [this](std::uint32_t row) {
    return row < content_.Rows().RowCount() ? content_.IdentityOf(row) : RowIdentity();
  };
  const RowIdentity current = selection_.Current() ? identity_of(*selection_.Current()) : RowIdentity();
  const RowIdentity first = geometry_.FirstRow() > 0 ? identity_of(geometry_.FirstRow()) : RowIdentity();
  std::vector<RowIdentity> chosen;
  for (const std::uint32_t row : selection_.Chosen()) chosen.push_back(identity_of(row));
  change();
  std::vector<std::uint32_t> rows;
  for (const RowIdentity& identity : chosen) {
    const auto row = content_.RowShowing(identity);
    // Not the group that hides it.
    if (row && content_.IdentityOf(*row) == identity) rows.push_back(*row);
  }
  selection_.PutBack(content_.RowShowing(current), std::move(rows));
  geometry_.SetFirstRow(content_.RowShowing(first).value_or(0));
  accessible_.TellContent();
  ShowKeys();
  ShowScrollBars();
  NoteCurrentRow();
}

void Win32Grid::ShowKeys() {
  constexpr int kBesideText = 30;
  std::vector<LONG> widths;
  for (std::int32_t position = 1; position <= content_.GroupKeys().Count(); ++position) {
    const auto key = content_.GroupKeys().Item(position);
    widths.push_back(TextSize(content_.Columns()[key->ColIndex].Caption()).cx +
                     Scaled(kBesideText, DotsPerInch()));
  }
  geometry_.SetChipWidths(std::move(widths));
  Repaint();
}

void Win32Grid::NoteCurrentRow() {
  RowIdentity identity;
  if (selection_.Current()) identity = content_.IdentityOf(*selection_.Current());
  accessible_.TellSelection();
  if (identity == current_) return;
  current_ = std::move(identity);
  accessible_.TellCurrent();
  RaiseEvent(current_row_changed_);
}

// Rows
// ----------------------------------------------------------------------------------------------------------

void Win32Grid::RequireRow(std::int32_t row) const {
  if (row < 0 || row > RowCount()) throw platform::SubscriptOutOfRange();
}

std::int32_t Win32Grid::CurrentRow() const {
  const auto row = selection_.Current();
  return row ? static_cast<std::int32_t>(*row) + 1 : 0;
}

void Win32Grid::SetCurrentRow(std::int32_t row) {
  RequireRow(row);
  if (row == 0) {
    selection_.ChooseOnly(std::nullopt);
  } else {
    selection_.ChooseOnly(static_cast<std::uint32_t>(row) - 1);
    BringIntoSight(static_cast<std::uint32_t>(row) - 1);
  }
  Repaint();
  NoteCurrentRow();
}

std::int32_t Win32Grid::FirstVisibleRow() const {
  return RowCount() == 0 ? 0 : static_cast<std::int32_t>(geometry_.FirstRow()) + 1;
}

void Win32Grid::SetFirstVisibleRow(std::int32_t row) {
  RequireRow(row);
  if (row > 0) ScrollTo(static_cast<std::uint32_t>(row) - 1);
}

void Win32Grid::SetCurrentColumn(std::int32_t column) {
  if (column < 0 || column > ColumnCount()) throw platform::SubscriptOutOfRange();
  current_column_ = column;
}

bool Win32Grid::IsRecordRow(std::uint32_t row) const { return content_.RecordInRow(row).has_value(); }

RecordSet::Bookmark Win32Grid::RowBookmark(std::int32_t row) const {
  RequireRow(row);
  if (row == 0) return 0;
  const auto record = content_.RecordInRow(static_cast<std::uint32_t>(row) - 1);
  return record ? content_.Cells().BookmarkOf(*record) : 0;
}

Value Win32Grid::CellValue(std::int32_t row, const std::string& column_key) const {
  RequireRow(row);
  const auto& column = content_.Columns().ByKey(column_key);
  if (row == 0) return {};
  const auto record = content_.RecordInRow(static_cast<std::uint32_t>(row) - 1);
  return record ? content_.Cells().CellValue(column.Index(), *record) : Value();
}

void Win32Grid::SetMultiSelect(bool multi_select) {
  const auto mode_without = marks_row_ranges_ ? RowSelection::Mode::kRange : RowSelection::Mode::kOne;
  selection_.SetMode(multi_select ? RowSelection::Mode::kMany : mode_without);
  Repaint();
}

std::vector<std::int32_t> Win32Grid::SelectedRows() const {
  std::vector<std::int32_t> rows;
  const auto add_record = [&](std::uint32_t row) {
    if (IsRecordRow(row)) rows.push_back(static_cast<std::int32_t>(row) + 1);
  };
  if (MultiSelect()) {
    for (const std::uint32_t row : selection_.Chosen()) add_record(row);
  } else if (selection_.Current()) {
    add_record(*selection_.Current());
  }
  return rows;
}

std::vector<std::uint32_t> Win32Grid::MarkedFromTop() const {
  std::vector<std::uint32_t> rows = selection_.Chosen();
  std::sort(rows.begin(), rows.end());
  return rows;
}

std::vector<std::int32_t> Win32Grid::MarkedRows() const {
  std::vector<std::int32_t> rows;
  for (const std::uint32_t row : MarkedFromTop()) {
    if (IsRecordRow(row)) rows.push_back(static_cast<std::int32_t>(row) + 1);
  }
  return rows;
}

// Looks
// ---------------------------------------------------------------------------------------------------------

void Win32Grid::AddFormat(const platform::GridFormat& format) {
  content_.Formats().Add(format);
  Repaint();
}

void Win32Grid::SetGroupByBoxVisible(bool visible) {
  geometry_.SetBoxVisible(visible);
  Resized();
}

void Win32Grid::ExpandAllGroups() {
  RearrangeRows([this] { content_.Rows().SetAllExpanded(true); });
}

void Win32Grid::CollapseAllGroups() {
  RearrangeRows([this] { content_.Rows().SetAllExpanded(false); });
}

void Win32Grid::ExpandSelection() {
  std::vector<grid_engine::GroupId> groups;
  for (const std::uint32_t row : selection_.Chosen()) {
    const auto shown = content_.Rows().RowAt(row);
    if (shown.is_group) groups.push_back(shown.group);
  }
  RearrangeRows([&] { content_.Rows().ExpandAround(groups); });
}

SIZE Win32Grid::NeededSize() const {
  constexpr int kWidth = 200;
  constexpr int kHeight = 120;
  return {Scaled(kWidth, DotsPerInch()), Scaled(kHeight, DotsPerInch())};
}

}  // namespace ferrowind::win32
