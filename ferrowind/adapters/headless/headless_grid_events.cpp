// The events of the grid, and the operator who raises them.
#include <algorithm>
#include <utility>

#include "ferrowind/adapters/headless/headless_grid.h"

namespace ferrowind::headless {

platform::Subscription HeadlessGrid::OnUnboundValue(UnboundValueHandler handler) {
  return unbound_value_.Subscribe(std::move(handler));
}
platform::Subscription HeadlessGrid::OnUnboundOrder(UnboundValueHandler handler) {
  return unbound_order_.Subscribe(std::move(handler));
}
platform::Subscription HeadlessGrid::OnCellText(CellTextHandler handler) {
  return cell_text_.Subscribe(std::move(handler));
}
platform::Subscription HeadlessGrid::OnHeaderClick(
    std::function<void(platform::GridColumn& column)> handler) {
  return header_clicked_.Subscribe(std::move(handler));
}
platform::Subscription HeadlessGrid::OnBeforeGroupChange(std::function<void()> handler) {
  return before_group_change_.Subscribe(std::move(handler));
}
platform::Subscription HeadlessGrid::OnAfterGroupChange(std::function<void()> handler) {
  return after_group_change_.Subscribe(std::move(handler));
}
platform::Subscription HeadlessGrid::OnGroupByBoxChange(std::function<void(bool visible)> handler) {
  return group_by_box_changed_.Subscribe(std::move(handler));
}

platform::Subscription HeadlessGrid::OnMouseUp(std::function<void(std::int32_t button)> handler) {
  return mouse_up_.Subscribe(std::move(handler));
}
platform::Subscription HeadlessGrid::OnCurrentRowChange(std::function<void()> handler) {
  return current_row_changed_.Subscribe(std::move(handler));
}

void HeadlessGrid::ClickRow(std::int32_t row) {
  const auto keep = core_.BeginAction("ClickRow", {row});
  RequireShownRow(row);
  core_.TakeFocus();
  SelectOnly(row);
  mouse_up_.Emit(platform::kLeftButton);
}

void HeadlessGrid::RightClickRow(std::int32_t row) {
  const auto keep = core_.BeginAction("RightClickRow", {row});
  RequireShownRow(row);
  core_.TakeFocus();
  const auto marked = Marked();
  if (std::find(marked.begin(), marked.end(), IdentityOf(row)) == marked.end()) {
    SelectOnly(row);
  } else {
    MakeCurrent(IdentityOf(row));
  }
  mouse_up_.Emit(platform::kRightButton);
}

void HeadlessGrid::ToggleRow(std::int32_t row) {
  const auto keep = core_.BeginAction("ToggleRow", {row});
  RequireShownRow(row);
  core_.TakeFocus();
  if (multi_select_) {
    anchor_ = IdentityOf(row);
    if (std::erase(selected_, anchor_) == 0 || selected_.empty()) selected_.push_back(anchor_);
    selected_before_range_ = selected_;
    MakeCurrent(anchor_);
  } else {
    SelectOnly(row);
  }
  mouse_up_.Emit(platform::kLeftButton);
}

void HeadlessGrid::ExtendToRow(std::int32_t row) {
  const auto keep = core_.BeginAction("ExtendToRow", {row});
  RequireShownRow(row);
  core_.TakeFocus();
  const std::int32_t anchor = RowOf(anchor_);
  if (anchor == 0 || !(multi_select_ || marks_row_ranges_)) {
    SelectOnly(row);
  } else {
    selected_ = selected_before_range_;
    for (std::int32_t at = std::min(anchor, row); at <= std::max(anchor, row); ++at) {
      std::erase(selected_, IdentityOf(at));
      selected_.push_back(IdentityOf(at));
    }
    MakeCurrent(IdentityOf(row));
  }
  mouse_up_.Emit(platform::kLeftButton);
}

void HeadlessGrid::ToggleGroup(std::int32_t row) {
  const auto keep = core_.BeginAction("ToggleGroup", {row});
  RequireShownRow(row);
  if (!IsGroupRow(row)) {
    core_.RaiseScriptError("Row " + std::to_string(row) + " of " + Name() + " is no group row");
  }
  core_.TakeFocus();
  const std::string path = RowAt(row).identity.group_path;
  if (collapsed_.erase(path) == 0) collapsed_.insert(path);
  Rearrange();
}

void HeadlessGrid::ReleaseMouse(std::int32_t button) {
  const auto keep = core_.BeginAction("ReleaseMouse", {button});
  mouse_up_.Emit(button);
}

void HeadlessGrid::ClickHeader(const std::string& column_key) {
  const auto keep = core_.BeginAction("ClickHeader", {column_key});
  HeadlessGridColumn& column = ColumnOf(column_key);
  if (!column.Visible()) core_.RaiseScriptError("The column " + column_key + " of " + Name() + " is hidden");
  header_clicked_.Emit(column);
}

void HeadlessGrid::DragHeaderToGroups(const std::string& column_key) {
  const auto keep = core_.BeginAction("DragHeaderToGroups", {column_key});
  const HeadlessGridColumn& column = ColumnOf(column_key);
  if (column.Groupable() == 0 || !group_by_box_visible_) {
    core_.RaiseScriptError("The grid " + Name() + " cannot be grouped by " + column_key + " now");
  }
  before_group_change_.Emit();
  group_keys_.Append(column.Index(), platform::kSortAscending);
  after_group_change_.Emit();
}

void HeadlessGrid::DragGroupAway(std::int32_t position) {
  const auto keep = core_.BeginAction("DragGroupAway", {position});
  if (position < 1 || position > group_keys_.Count()) {
    core_.RaiseScriptError("The grid " + Name() + " has no group key " + std::to_string(position));
  }
  before_group_change_.Emit();
  group_keys_.DropAt(position);
  after_group_change_.Emit();
}

void HeadlessGrid::ToggleGroupByBox() {
  const auto keep = core_.BeginAction("ToggleGroupByBox", {});
  group_by_box_visible_ = !group_by_box_visible_;
  group_by_box_changed_.Emit(group_by_box_visible_);
}

void HeadlessGrid::RequireShownRow(std::int32_t row) {
  if (row < 1 || row > RowCount()) {
    core_.RaiseScriptError("The grid " + Name() + " has no row " + std::to_string(row) + " on show");
  }
}

}  // namespace ferrowind::headless
