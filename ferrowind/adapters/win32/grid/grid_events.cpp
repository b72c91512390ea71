// Who hears of what the operator does in a grid.
#include <utility>

#include "ferrowind/adapters/win32/grid/grid.h"

namespace ferrowind::win32 {

platform::Subscription Win32Grid::OnUnboundValue(UnboundValueHandler handler) {
  return content_.Cells().OnUnboundValue(std::move(handler));
}
platform::Subscription Win32Grid::OnUnboundOrder(UnboundValueHandler handler) {
  return content_.Cells().OnUnboundOrder(std::move(handler));
}
platform::Subscription Win32Grid::OnCellText(CellTextHandler handler) {
  return content_.Cells().OnCellText(std::move(handler));
}
platform::Subscription Win32Grid::OnHeaderClick(std::function<void(platform::GridColumn& column)> handler) {
  return header_clicked_.Subscribe(std::move(handler));
}
platform::Subscription Win32Grid::OnBeforeGroupChange(std::function<void()> handler) {
  return before_group_change_.Subscribe(std::move(handler));
}
platform::Subscription Win32Grid::OnAfterGroupChange(std::function<void()> handler) {
  return after_group_change_.Subscribe(std::move(handler));
}
platform::Subscription Win32Grid::OnGroupByBoxChange(std::function<void(bool visible)> handler) {
  return group_by_box_changed_.Subscribe(std::move(handler));
}
platform::Subscription Win32Grid::OnMouseUp(std::function<void(std::int32_t button)> handler) {
  return mouse_up_.Subscribe(std::move(handler));
}
platform::Subscription Win32Grid::OnCurrentRowChange(std::function<void()> handler) {
  return current_row_changed_.Subscribe(std::move(handler));
}

void Win32Grid::RefreshAfterGroupChange() {
  RaiseEvent(after_group_change_);
  // Who listens may have refreshed it already.
  if (is_stale_) Refresh(false);
}

}  // namespace ferrowind::win32
