#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/headless/grid_arrangement.h"
#include "ferrowind/adapters/headless/headless_control.h"
#include "ferrowind/adapters/headless/headless_grid_column.h"
#include "ferrowind/adapters/headless/headless_grid_key_list.h"
#include "ferrowind/platform/toolkit/grid.h"

namespace ferrowind::headless {

/// How the conditional formats of a grid make a row look.
struct GridRowStyle {
  std::optional<platform::Color> fore_color;
  bool bold = false;
  bool strike_through = false;
  friend bool operator==(const GridRowStyle&, const GridRowStyle&) = default;
};

/// A grid whose columns, keys, rows, groups and formats are real, only painted nowhere. Groups are expanded
/// at first.
class HeadlessGrid : public HeadlessControl<platform::Grid> {
 public:
  HeadlessGrid(ControlHost& host, std::string name, bool marks_row_ranges);

  platform::GridColumn& AddColumn(const std::string& caption, std::int32_t type, std::int32_t edit_type,
                                  const std::string& key) override;
  [[nodiscard]] std::int32_t ColumnCount() const override {
    return static_cast<std::int32_t>(columns_.size());
  }
  [[nodiscard]] platform::GridColumn& ColumnByKey(const std::string& key) override { return ColumnOf(key); }
  [[nodiscard]] platform::GridColumn& ColumnAt(std::int32_t index) override;
  [[nodiscard]] std::vector<std::string> ColumnOrder() const override { return column_order_; }
  void MoveColumnBehind(const std::string& key, const std::string& other) override;

  [[nodiscard]] std::shared_ptr<platform::RecordSet> Records() const override { return records_; }
  void AttachRecords(std::shared_ptr<platform::RecordSet> records) override;
  void Narrow(RowChoice choose) override;
  void HoldColumns() override;
  void Rebind() override;
  void Refresh(bool recompute) override;
  [[nodiscard]] platform::GridKeyList& SortKeys() override { return sort_keys_; }
  [[nodiscard]] platform::GridKeyList& GroupKeys() override { return group_keys_; }

  [[nodiscard]] std::int32_t RowCount() const override { return static_cast<std::int32_t>(rows_.size()); }
  [[nodiscard]] std::int32_t CurrentRow() const override { return RowOf(current_); }
  void SetCurrentRow(std::int32_t row) override;
  [[nodiscard]] std::int32_t FirstVisibleRow() const override { return RowOf(top_); }
  void SetFirstVisibleRow(std::int32_t row) override;
  [[nodiscard]] std::int32_t CurrentColumn() const override { return current_column_; }
  void SetCurrentColumn(std::int32_t column) override;
  [[nodiscard]] platform::RecordSet::Bookmark RowBookmark(std::int32_t row) const override;
  [[nodiscard]] platform::Value CellValue(std::int32_t row, const std::string& column_key) const override;
  [[nodiscard]] bool MultiSelect() const override { return multi_select_; }
  void SetMultiSelect(bool multi_select) override;
  [[nodiscard]] std::vector<std::int32_t> SelectedRows() const override;
  [[nodiscard]] std::vector<std::int32_t> MarkedRows() const override;

  [[nodiscard]] std::int32_t FormatCount() const override {
    return static_cast<std::int32_t>(formats_.size());
  }
  void AddFormat(const platform::GridFormat& format) override;
  [[nodiscard]] bool GroupByBoxVisible() const override { return group_by_box_visible_; }
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

  /// The settings sections whose layouts this grid has loaded or stored, for the shared services.
  [[nodiscard]] std::set<std::string>& LayoutSections() { return layout_sections_; }

  // What a test can ask
  // -----------------------------------------------------------------------------------------

  [[nodiscard]] bool IsGroupRow(std::int32_t row) const;
  /// The row on show; `row` must be between 1 and `RowCount`.
  [[nodiscard]] const GridRow& RowAt(std::int32_t row) const {
    return rows_[static_cast<std::size_t>(row) - 1];
  }
  /// The text that a cell shows; of a group row, whatever the column, the text of what its records have in
  /// common.
  [[nodiscard]] std::string CellText(std::int32_t row, const std::string& column_key) const;
  [[nodiscard]] GridRowStyle RowStyle(std::int32_t row) const;
  [[nodiscard]] const std::vector<platform::GridFormat>& Formats() const { return formats_; }
  [[nodiscard]] HeadlessGridColumn& ColumnOf(const std::string& key) const;

  // What the operator does; a row must be between 1 and `RowCount`
  // -----------------------------------------------

  /// Clicks a row: it becomes the current row and the only selected one; then the button is released.
  void ClickRow(std::int32_t row);
  /// As `ClickRow` with the right button, which leaves a selection alone that the row is in.
  void RightClickRow(std::int32_t row);
  /// Clicks a row with the Ctrl key held: adds it to the selection or takes it out, unless it is the last.
  void ToggleRow(std::int32_t row);
  /// Clicks a row with the Shift key held: selects or marks the rows from the one clicked last to it.
  void ExtendToRow(std::int32_t row);
  /// Clicks the mark that expands or collapses a group row.
  void ToggleGroup(std::int32_t row);
  /// Releases a mouse button over the rows, with nothing else.
  void ReleaseMouse(std::int32_t button);
  void ClickHeader(const std::string& column_key);
  /// Drags a header into the group-by box, behind the headers there; script error when the column is not
  /// groupable.
  void DragHeaderToGroups(const std::string& column_key);
  /// Drags the header of the group key at the 1-based position out of the group-by box.
  void DragGroupAway(std::int32_t position);
  /// Shows or hides the group-by box from the menu of the headers.
  void ToggleGroupByBox();

 private:
  [[nodiscard]] platform::Value ValueOf(platform::RecordSet::Bookmark bookmark,
                                        const HeadlessGridColumn& column) const;
  [[nodiscard]] platform::Value OrderOf(platform::RecordSet::Bookmark bookmark,
                                        const HeadlessGridColumn& column) const;
  [[nodiscard]] std::string ShownText(const HeadlessGridColumn& column, const platform::Value& value) const;
  [[nodiscard]] bool Applies(const platform::GridFormat& format, std::int32_t row) const;
  [[nodiscard]] GridArrangement ShownArrangement() const;
  void ApplyKeys();
  void Rearrange();
  /// Takes the attached records that the choice shows.
  void TakeShown();
  [[nodiscard]] std::int32_t RowOf(const GridRowIdentity& identity) const;
  [[nodiscard]] GridRowIdentity IdentityOf(std::int32_t row) const;
  /// The row of `identity` or, when a collapsed group hides it, that group's.
  [[nodiscard]] GridRowIdentity OnShow(const GridRowIdentity& identity) const;
  void RequireRow(std::int32_t row) const;
  void RequireShownRow(std::int32_t row);
  void MakeCurrent(const GridRowIdentity& identity);
  void ExpandAround(const GridRowIdentity& identity);
  /// Makes the row current and the only selected one.
  void SelectOnly(std::int32_t row);
  /// The rows that are painted as chosen.
  [[nodiscard]] std::vector<GridRowIdentity> Marked() const;
  [[nodiscard]] std::vector<std::int32_t> RecordRowsOf(const std::vector<GridRowIdentity>& rows) const;

  std::vector<std::unique_ptr<HeadlessGridColumn>> columns_;
  /// Their keys, as they stand side by side.
  std::vector<std::string> column_order_;
  /// Kept, since a column lives as long as the grid.
  std::vector<std::unique_ptr<HeadlessGridColumn>> dropped_columns_;
  std::size_t held_columns_ = 0;
  std::shared_ptr<platform::RecordSet> records_;
  /// Of the records that pass the record set's filter, at the moment of attaching it.
  std::vector<platform::RecordSet::Bookmark> attached_;
  /// Empty to show all of them.
  RowChoice choose_;
  std::vector<platform::RecordSet::Bookmark> bookmarks_;
  HeadlessGridKeyList sort_keys_;
  HeadlessGridKeyList group_keys_;
  /// The keys that the rows on show follow; changes of the lists show after `Refresh`.
  std::vector<platform::GridKey> shown_sorts_;
  std::vector<platform::GridKey> shown_groups_;
  std::set<std::string> collapsed_;
  std::vector<GridRow> rows_;
  GridRowIdentity current_;
  GridRowIdentity top_;
  std::vector<GridRowIdentity> selected_;
  /// Where a range begins, and what was selected before it.
  GridRowIdentity anchor_;
  std::vector<GridRowIdentity> selected_before_range_;
  std::int32_t current_column_ = 0;
  bool marks_row_ranges_;
  bool multi_select_ = false;
  bool group_by_box_visible_ = false;
  std::vector<platform::GridFormat> formats_;
  mutable std::map<std::pair<platform::RecordSet::Bookmark, std::int16_t>, platform::Value> computed_;

  platform::Signal<platform::RecordSet::Bookmark, std::int16_t, platform::Value&> unbound_value_;
  platform::Signal<platform::RecordSet::Bookmark, std::int16_t, platform::Value&> unbound_order_;
  platform::Signal<platform::RecordSet::Bookmark, std::int16_t, std::string&> cell_text_;
  platform::Signal<platform::GridColumn&> header_clicked_;
  platform::Signal<> before_group_change_;
  platform::Signal<> after_group_change_;
  platform::Signal<bool> group_by_box_changed_;
  platform::Signal<std::int32_t> mouse_up_;
  platform::Signal<> current_row_changed_;
  std::set<std::string> layout_sections_;
};

}  // namespace ferrowind::headless
