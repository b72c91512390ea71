#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ferrowind/export.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/platform/toolkit/control.h"
#include "ferrowind/platform/toolkit/grid_column.h"
#include "ferrowind/platform/toolkit/grid_format.h"
#include "ferrowind/platform/toolkit/grid_keys.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::platform {

///@{
/// The button numbers of mouse events.
inline constexpr std::int32_t kLeftButton = 1;
inline constexpr std::int32_t kRightButton = 2;
///@}

/// A grid of the visible rows of a record set, sorted and grouped by lists of keys, its rows formatted by
/// conditions.
///
/// Row numbers are 1-based positions among the rows on show, group rows included; column numbers are column
/// indices. 0 stands for none in both.
class FERROWIND_EXPORT Grid : public Control {
 public:
  // Columns
  // ---------------------------------------------------------------------------------------------------

  /// Adds a visible column behind the others, without a bound field. `type` 0 is a column of text;
  /// `edit_type` 1 is one that the operator cannot edit; other numbers are the failure Invalid argument. A
  /// key in use (letter case ignored) is the failure Key not unique (35602), which names it.
  virtual GridColumn& AddColumn(const std::string& caption, std::int32_t type, std::int32_t edit_type,
                                const std::string& key) = 0;
  /// All columns, hidden ones too.
  [[nodiscard]] virtual std::int32_t ColumnCount() const = 0;
  /// The column of that key, letter case ignored; none is the failure Element not found (35601), which names
  /// it.
  [[nodiscard]] virtual GridColumn& ColumnByKey(const std::string& key) = 0;
  /// The column of that 1-based index; none is the failure Subscript out of range.
  [[nodiscard]] virtual GridColumn& ColumnAt(std::int32_t index) = 0;
  /// The keys of the columns as they stand side by side, hidden ones too: in the order of adding, until the
  /// operator or `MoveColumnBehind` moves one.
  [[nodiscard]] virtual std::vector<std::string> ColumnOrder() const = 0;
  /// Has a column stand right behind another one; indices stay what they are. Both are named by keys, letter
  /// case ignored; a key of none is the failure Element not found (35601), which names it.
  virtual void MoveColumnBehind(const std::string& key, const std::string& other) = 0;

  // Records
  // ---------------------------------------------------------------------------------------------------

  /// The record set on show, or null.
  [[nodiscard]] virtual std::shared_ptr<RecordSet> Records() const = 0;
  /// Shows a record set, or none when null. Drops all sort and grouping keys, the current row and the
  /// selection. The grid shows the rows that pass the record set's filter at this moment and never moves its
  /// cursor itself. Columns that `HoldColumns` did not hold are dropped as well.
  virtual void AttachRecords(std::shared_ptr<RecordSet> records) = 0;
  /// Whether the record of that bookmark is to be shown.
  using RowCondition = std::function<bool(RecordSet::Bookmark bookmark)>;
  /// Gives the condition for the record set, which is not null.
  using RowChoice = std::function<RowCondition(const std::shared_ptr<RecordSet>& records)>;
  /// Leaves out the rows of the records for which a condition is false, and groups without any other row.
  /// `choose` is asked for the condition of the record set of now, and of every one that is attached later;
  /// an empty choice leaves out none. Neither changes anything of the grid, and neither fails. Keys, expanded
  /// groups, the current row, the selection and the first visible row stay as far as their rows are on show.
  virtual void Narrow(RowChoice choose) = 0;
  /// Makes the columns of now survive the next change of record set.
  virtual void HoldColumns() = 0;
  /// Binds the columns to the fields of the record set of now and shows its rows from the first one. No row
  /// is current afterwards.
  virtual void Rebind() = 0;
  /// Sorts and groups by the keys of now and shows the result. `recompute` asks for the computed cells anew.
  virtual void Refresh(bool recompute) = 0;

  ///@{
  /// The grid's own lists, alive as long as the grid.
  [[nodiscard]] virtual GridKeyList& SortKeys() = 0;
  [[nodiscard]] virtual GridKeyList& GroupKeys() = 0;
  ///@}

  // Rows
  // ------------------------------------------------------------------------------------------------------

  /// How many rows are on show: those of records in expanded groups, and group rows.
  [[nodiscard]] virtual std::int32_t RowCount() const = 0;
  /// The row that the keyboard acts on.
  [[nodiscard]] virtual std::int32_t CurrentRow() const = 0;
  /// A row number above `RowCount` or below 0 is the failure Subscript out of range; so for all setters
  /// below.
  virtual void SetCurrentRow(std::int32_t row) = 0;
  ///@{
  /// The row at the top of what is scrolled to.
  [[nodiscard]] virtual std::int32_t FirstVisibleRow() const = 0;
  virtual void SetFirstVisibleRow(std::int32_t row) = 0;
  ///@}
  ///@{
  /// The column of the current cell.
  [[nodiscard]] virtual std::int32_t CurrentColumn() const = 0;
  virtual void SetCurrentColumn(std::int32_t column) = 0;
  ///@}
  /// The bookmark of the record in that row; 0 for a group row and for row 0.
  [[nodiscard]] virtual RecordSet::Bookmark RowBookmark(std::int32_t row) const = 0;
  /// The value in that row and column, computed ones included; empty in a group row.
  [[nodiscard]] virtual Value CellValue(std::int32_t row, const std::string& column_key) const = 0;

  ///@{
  /// Whether the operator can select several rows.
  [[nodiscard]] virtual bool MultiSelect() const = 0;
  virtual void SetMultiSelect(bool multi_select) = 0;
  ///@}
  /// The selected records' rows in the order in which they were selected; without multiple selection the
  /// current row. The operator cannot take the last selected row out of the selection.
  [[nodiscard]] virtual std::vector<std::int32_t> SelectedRows() const = 0;
  /// The records' rows that a copy takes, from the top: the selected ones with multiple selection; without it
  /// the range that the operator has marked, in a grid whose design lets them, or the current row, which is
  /// always in it.
  [[nodiscard]] virtual std::vector<std::int32_t> MarkedRows() const = 0;

  // Looks
  // -----------------------------------------------------------------------------------------------------

  /// How many formats were added, each key counted once.
  [[nodiscard]] virtual std::int32_t FormatCount() const = 0;
  /// A format of a key that is there already takes its place.
  virtual void AddFormat(const GridFormat& format) = 0;
  ///@{
  /// Whether the box is shown that headers are dragged into to group by them.
  [[nodiscard]] virtual bool GroupByBoxVisible() const = 0;
  virtual void SetGroupByBoxVisible(bool visible) = 0;
  ///@}
  ///@{
  /// The groups of all levels; does nothing in a grid that is not grouped.
  virtual void ExpandAllGroups() = 0;
  virtual void CollapseAllGroups() = 0;
  ///@}
  /// Expands the selected or marked group rows, all their levels, and the groups of such records.
  virtual void ExpandSelection() = 0;

  // Events
  // ----------------------------------------------------------------------------------------------------

  /// A cell of an unbound column is needed: of the record `bookmark`, in the column of index `column`. The
  /// handler puts the value into `receiver`, which is empty at first, and changes nothing of the grid.
  using UnboundValueHandler =
      std::function<void(RecordSet::Bookmark bookmark, std::int16_t column, Value& receiver)>;
  /// The handler must fill the cell, see `UnboundValueHandler`.
  [[nodiscard]] virtual Subscription OnUnboundValue(UnboundValueHandler handler) = 0;
  /// What a cell of an unbound column is sorted and grouped by is needed; `receiver` holds the cell's value,
  /// and the handler may put another there: the number of a month whose name the cell shows. A group shows
  /// the cell of its first record.
  [[nodiscard]] virtual Subscription OnUnboundOrder(UnboundValueHandler handler) = 0;
  /// The text of a cell is needed; `text` holds what would be shown, and the handler may put another text
  /// there.
  using CellTextHandler =
      std::function<void(RecordSet::Bookmark bookmark, std::int16_t column, std::string& text)>;
  /// The handler may reword the cell, see `CellTextHandler`.
  [[nodiscard]] virtual Subscription OnCellText(CellTextHandler handler) = 0;

  /// The operator clicked a column's title; nothing is sorted by that yet.
  [[nodiscard]] virtual Subscription OnHeaderClick(std::function<void(GridColumn& column)> handler) = 0;
  ///@{
  /// The operator is about to change the grouping, and has changed it. Always raised as a pair.
  [[nodiscard]] virtual Subscription OnBeforeGroupChange(std::function<void()> handler) = 0;
  [[nodiscard]] virtual Subscription OnAfterGroupChange(std::function<void()> handler) = 0;
  ///@}
  /// The operator showed or hid the group-by box by the grid's own means; not raised for the program's doing.
  [[nodiscard]] virtual Subscription OnGroupByBoxChange(std::function<void(bool visible)> handler) = 0;
  /// A mouse button was released over the grid's rows. The context-menu key counts as `kRightButton`.
  [[nodiscard]] virtual Subscription OnMouseUp(std::function<void(std::int32_t button)> handler) = 0;
  /// Another record or group became the current row, or none is any more; not raised when the same one moves.
  [[nodiscard]] virtual Subscription OnCurrentRowChange(std::function<void()> handler) = 0;
};

}  // namespace ferrowind::platform
