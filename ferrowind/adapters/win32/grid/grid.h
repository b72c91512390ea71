#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "ferrowind/adapters/grid_content/arrangeable_grid.h"
#include "ferrowind/adapters/grid_content/grid_operations.h"
#include "ferrowind/adapters/grid_content/row_identity.h"
#include "ferrowind/adapters/win32/controls/control_window.h"
#include "ferrowind/adapters/win32/controls/row_selection.h"
#include "ferrowind/adapters/win32/controls/scroll_bars.h"
#include "ferrowind/adapters/win32/controls/shortcut.h"
#include "ferrowind/adapters/win32/grid/grid_content.h"
#include "ferrowind/adapters/win32/grid/grid_geometry.h"
#include "ferrowind/adapters/win32/grid/grid_parts.h"
#include "ferrowind/platform/toolkit/grid.h"

namespace ferrowind::win32 {

/// The grid, painted by itself. Groups are expanded at first.
class Win32Grid final : public Win32Control<platform::Grid>, public grid_content::ArrangeableGrid {
 public:
  Win32Grid(ControlHost& host, std::string name, HWND parent, bool marks_row_ranges);

  platform::GridColumn& AddColumn(const std::string& caption, std::int32_t type, std::int32_t edit_type,
                                  const std::string& key) override;
  [[nodiscard]] std::int32_t ColumnCount() const override { return content_.Columns().Count(); }
  [[nodiscard]] platform::GridColumn& ColumnByKey(const std::string& key) override {
    return content_.Columns().ByKey(key);
  }
  [[nodiscard]] platform::GridColumn& ColumnAt(std::int32_t index) override {
    return content_.Columns().At(index);
  }
  [[nodiscard]] std::vector<std::string> ColumnOrder() const override;
  void MoveColumnBehind(const std::string& key, const std::string& other) override;
  [[nodiscard]] std::shared_ptr<platform::RecordSet> Records() const override {
    return content_.Cells().Records();
  }
  void AttachRecords(std::shared_ptr<platform::RecordSet> records) override;
  void Narrow(RowChoice choose) override;
  void HoldColumns() override { content_.Columns().Hold(); }
  void Rebind() override;
  void Refresh(bool recompute) override;
  [[nodiscard]] platform::GridKeyList& SortKeys() override { return content_.SortKeys(); }
  [[nodiscard]] platform::GridKeyList& GroupKeys() override { return content_.GroupKeys(); }
  [[nodiscard]] std::int32_t RowCount() const override {
    return static_cast<std::int32_t>(content_.Rows().RowCount());
  }
  [[nodiscard]] std::int32_t CurrentRow() const override;
  void SetCurrentRow(std::int32_t row) override;
  [[nodiscard]] std::int32_t FirstVisibleRow() const override;
  void SetFirstVisibleRow(std::int32_t row) override;
  [[nodiscard]] std::int32_t CurrentColumn() const override { return current_column_; }
  void SetCurrentColumn(std::int32_t column) override;
  [[nodiscard]] platform::RecordSet::Bookmark RowBookmark(std::int32_t row) const override;
  [[nodiscard]] platform::Value CellValue(std::int32_t row, const std::string& column_key) const override;
  [[nodiscard]] bool MultiSelect() const override {
    return selection_.CurrentMode() == RowSelection::Mode::kMany;
  }
  void SetMultiSelect(bool multi_select) override;
  [[nodiscard]] std::vector<std::int32_t> SelectedRows() const override;
  [[nodiscard]] std::vector<std::int32_t> MarkedRows() const override;
  [[nodiscard]] std::int32_t FormatCount() const override { return content_.Formats().Count(); }
  void AddFormat(const platform::GridFormat& format) override;
  [[nodiscard]] bool GroupByBoxVisible() const override { return geometry_.IsBoxVisible(); }
  void SetGroupByBoxVisible(bool visible) override;
  void ExpandAllGroups() override;
  void CollapseAllGroups() override;
  void ExpandSelection() override;
  [[nodiscard]] platform::Subscription OnUnboundValue(UnboundValueHandler handler) override;
  [[nodiscard]] platform::Subscription OnUnboundOrder(UnboundValueHandler handler) override;
  [[nodiscard]] platform::Subscription OnCellText(CellTextHandler handler) override;
  [[nodiscard]] platform::Subscription OnHeaderClick(
      std::function<void(platform::GridColumn& column)> handler) override;
  [[nodiscard]] platform::Subscription OnBeforeGroupChange(std::function<void()> handler) override;
  [[nodiscard]] platform::Subscription OnAfterGroupChange(std::function<void()> handler) override;
  [[nodiscard]] platform::Subscription OnGroupByBoxChange(std::function<void(bool visible)> handler) override;
  [[nodiscard]] platform::Subscription OnMouseUp(std::function<void(std::int32_t button)> handler) override;
  [[nodiscard]] platform::Subscription OnCurrentRowChange(std::function<void()> handler) override;

  void Mute() override;
  [[nodiscard]] bool CanHaveFocus() const override { return true; }
  [[nodiscard]] bool FillsHeight() const override { return true; }

  [[nodiscard]] std::string SaveLayout() const override;
  bool RestoreLayout(const std::string& layout) override;
  [[nodiscard]] std::set<std::string>& LayoutSections() override { return layout_sections_; }
  void CopyRows(bool with_headers) const override;
  [[nodiscard]] const AccessibleWindow* Accessible() const override { return &accessible_; }

  /// What is shown, and where.
  [[nodiscard]] const GridContent& Content() const { return content_; }
  [[nodiscard]] const GridGeometry& Geometry() const { return geometry_; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM w_param, LPARAM l_param) override;
  [[nodiscard]] SIZE NeededSize() const override;

 private:
  /// What the left mouse button was pressed on, until it is released.
  struct Press {
    GridHit hit;
    POINT place{};
    bool is_drag = false;
  };

  // Content and rows
  [[nodiscard]] GridContent::Listener MakeListener();
  void RearrangeRows(const std::function<void()>& change);
  void NoteCurrentRow();
  void FitColumns();
  void ShowKeys();
  void RefreshAfterGroupChange();
  void RequireRow(std::int32_t row) const;
  [[nodiscard]] bool IsRecordRow(std::uint32_t row) const;
  [[nodiscard]] std::vector<std::uint32_t> MarkedFromTop() const;

  // Looks
  void Resized();
  void ShowScrollBars();
  void Scroll(int bar, WORD request);
  void ScrollTo(std::uint32_t first_row);
  void BringIntoSight(std::uint32_t row);
  void Repaint() const { InvalidateRect(Handle(), nullptr, FALSE); }
  void Paint();

  // What the operator does
  LRESULT OnMouse(UINT message, WPARAM w_param, POINT place);
  void PressAt(POINT place);
  void MoveTo(POINT place);
  void ReleaseAt(POINT place);
  void DropAt(const Press& press, POINT place);
  void ClickRow(std::uint32_t row);
  void ToggleGroup(std::uint32_t row);
  bool OnKey(const KeyPress& press);
  void GoTo(std::uint32_t row, const KeyPress& press);
  void AskForMenuByKey();
  void ShowHeaderMenu(std::int16_t column, POINT screen);

  GridContent content_;
  grid_content::GridOperations operations_;
  GridGeometry geometry_;
  RowSelection selection_;
  bool marks_row_ranges_;
  std::int32_t current_column_ = 0;
  /// What is current, by which another row is told from the same one elsewhere.
  grid_content::RowIdentity current_;
  /// Keys or cells have changed since the rows were arranged.
  bool is_stale_ = false;
  std::optional<Press> press_;
  WheelSteps wheel_;
  /// The columns whose widths the operator or a layout has set, which contents change no more.
  std::set<std::int16_t> settled_widths_;
  std::set<std::string> layout_sections_;

  GridParts parts_{content_, geometry_, selection_, Words(),
                   [this](std::uint32_t row) { SetCurrentRow(static_cast<std::int32_t>(row) + 1); }};
  AccessibleWindow accessible_{Handle(), parts_};

  platform::Signal<platform::GridColumn&> header_clicked_;
  platform::Signal<> before_group_change_;
  platform::Signal<> after_group_change_;
  platform::Signal<bool> group_by_box_changed_;
  platform::Signal<std::int32_t> mouse_up_;
  platform::Signal<> current_row_changed_;
};

}  // namespace ferrowind::win32
