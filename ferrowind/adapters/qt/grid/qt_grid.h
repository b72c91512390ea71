#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "ferrowind/adapters/grid_content/arrangeable_grid.h"
#include "ferrowind/adapters/grid_content/grid_operations.h"
#include "ferrowind/adapters/grid_content/row_identity.h"
#include "ferrowind/adapters/qt/controls/qt_control.h"
#include "ferrowind/adapters/qt/grid/grid_content.h"
#include "ferrowind/adapters/qt/grid/grid_widget.h"
#include "ferrowind/platform/events/signal.h"
#include "ferrowind/platform/toolkit/grid.h"

namespace ferrowind::qt {

class GridHeader;
class GridModel;
class GridView;
class SelectionOrder;

/// The grid of the Qt toolkit. Groups are expanded at first.
class QtGrid final : public QtControl<platform::Grid>, public grid_content::ArrangeableGrid {
 public:
  /// Shows itself in `widget`, which must live at least as long; its object name is the grid's name.
  explicit QtGrid(GridWidget& widget);
  ~QtGrid() override;
  QtGrid(const QtGrid&) = delete;
  QtGrid& operator=(const QtGrid&) = delete;

  [[nodiscard]] GridWidget& Widget() const { return widget_; }

  void Mute() override;

  platform::GridColumn& AddColumn(const std::string& caption, std::int32_t type, std::int32_t edit_type,
                                  const std::string& key) override;
  [[nodiscard]] std::int32_t ColumnCount() const override;
  [[nodiscard]] platform::GridColumn& ColumnByKey(const std::string& key) override;
  [[nodiscard]] platform::GridColumn& ColumnAt(std::int32_t index) override;
  [[nodiscard]] std::vector<std::string> ColumnOrder() const override;
  void MoveColumnBehind(const std::string& key, const std::string& other) override;
  [[nodiscard]] std::shared_ptr<platform::RecordSet> Records() const override;
  void AttachRecords(std::shared_ptr<platform::RecordSet> records) override;
  void Narrow(RowChoice choose) override;
  void HoldColumns() override;
  void Rebind() override;
  void Refresh(bool recompute) override;
  [[nodiscard]] platform::GridKeyList& SortKeys() override { return content_.SortKeys(); }
  [[nodiscard]] platform::GridKeyList& GroupKeys() override { return content_.GroupKeys(); }
  [[nodiscard]] std::int32_t RowCount() const override;
  [[nodiscard]] std::int32_t CurrentRow() const override;
  void SetCurrentRow(std::int32_t row) override;
  [[nodiscard]] std::int32_t FirstVisibleRow() const override;
  void SetFirstVisibleRow(std::int32_t row) override;
  [[nodiscard]] std::int32_t CurrentColumn() const override;
  void SetCurrentColumn(std::int32_t column) override;
  [[nodiscard]] platform::RecordSet::Bookmark RowBookmark(std::int32_t row) const override;
  [[nodiscard]] platform::Value CellValue(std::int32_t row, const std::string& column_key) const override;
  [[nodiscard]] bool MultiSelect() const override;
  void SetMultiSelect(bool multi_select) override;
  [[nodiscard]] std::vector<std::int32_t> SelectedRows() const override;
  [[nodiscard]] std::vector<std::int32_t> MarkedRows() const override;
  [[nodiscard]] std::int32_t FormatCount() const override;
  void AddFormat(const platform::GridFormat& format) override;
  [[nodiscard]] bool GroupByBoxVisible() const override;
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

  /// Whether the operator can mark a range of rows while there is no multiple selection; false at first.
  void SetMarksRowRanges(bool marks_row_ranges);

  [[nodiscard]] std::string SaveLayout() const override;
  bool RestoreLayout(const std::string& layout) override;
  [[nodiscard]] std::set<std::string>& LayoutSections() override { return layout_sections_; }
  void CopyRows(bool with_headers) const override;

 private:
  void ConnectView();
  void ConnectGroupBox();
  void SetSelectionMode(bool multi_select, bool marks_row_ranges);
  void KeepRowsDuring(const std::function<void()>& change);
  void RearrangeRows(const std::function<void()>& change);
  void ShowKeys();
  void ShowColumnVisibility(const grid_content::StoredColumn& column);
  void ShowCaptions();
  void FitColumns();
  void NoteCurrentRow();
  void RefreshAfterGroupChange();
  void ShowHeaderMenu(int column, const QPoint& global);
  void RequireRow(std::int32_t row) const;
  /// The rows painted as chosen, from the top, groups among them. Rows count from 0.
  [[nodiscard]] std::vector<int> MarkedViewRows() const;

  /// Tells whether the grid is still there after handlers have run.
  std::shared_ptr<int> alive_ = std::make_shared<int>(0);
  GridWidget& widget_;
  GridView& view_;
  GridHeader& header_;
  GridContent content_;
  grid_content::GridOperations operations_;
  /// The receiver of all connections, so that they end with the grid; owns the model.
  std::unique_ptr<QObject> context_;
  GridModel* model_ = nullptr;
  SelectionOrder* selection_ = nullptr;
  /// Columns whose width is settled: fitted to many records, given by a layout or chosen by the operator.
  std::set<std::int32_t> settled_widths_;
  /// What columns show may have changed since they were fitted last.
  bool widths_are_due_ = true;
  grid_content::RowIdentity current_;
  bool keeps_rows_ = false;
  bool marks_row_ranges_ = false;
  std::set<std::string> layout_sections_;
  /// Keys have changed since the rows were arranged.
  bool is_stale_ = false;

  platform::Signal<platform::GridColumn&> header_clicked_;
  platform::Signal<> before_group_change_;
  platform::Signal<> after_group_change_;
  platform::Signal<bool> group_by_box_changed_;
  platform::Signal<std::int32_t> mouse_up_;
  platform::Signal<> current_row_changed_;
};

}  // namespace ferrowind::qt
