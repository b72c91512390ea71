#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/export.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/platform/toolkit/control.h"

namespace ferrowind::platform {

/// A shape before a cell's text, which says by its form, not by its colour, what the cell means. Assistive
/// tools, the tooltip of a cell without a text and copies say it by a word.
enum class FERROWIND_EXPORT CellMark {
  kNone,
  /// A full circle with a check in it.
  kPrepared,
  /// An unequal sign.
  kDiffers,
  /// A half circle.
  kPartly,
  /// An empty circle.
  kMissing,
  /// An i in a circle.
  kNote,
  /// An exclamation mark in a triangle.
  kWarning,
  /// A cross in an octagon.
  kError,
  /// A plus sign.
  kAdded,
  /// A minus sign.
  kRemoved,
  /// Two arrows, one each way.
  kReplaced,
  /// An equal sign.
  kKept,
  /// A cross.
  kException,
  /// A dot in a ring.
  kToday,
};

/// The English word for a mark; "" for none.
[[nodiscard]] FERROWIND_EXPORT const char* WordOf(CellMark mark);

/// How much a cell asks for attention.
enum class FERROWIND_EXPORT CellTone {
  kNormal,
  /// Fainter than the others, yet readable.
  kQuiet,
  /// Bold.
  kLoud,
};

/// A cell of a table: its text, behind its mark.
struct FERROWIND_EXPORT TableCell {
  /// Plain text on one line.
  std::string text = {};
  /// Stands before the text.
  CellMark mark = CellMark::kNone;
  /// Of the text and the mark.
  CellTone tone = CellTone::kNormal;
  /// What the cell means in a sentence: its tooltip, and what assistive tools add to its text. "" for nothing
  /// to add.
  std::string description = {};
  /// What the column sorts by in place of the text. Cells without an order stand behind those with one.
  std::optional<std::int64_t> order = {};
};

/// A row of a table.
struct FERROWIND_EXPORT TableRow {
  /// Unique in the table, letter case counts: what the program knows the row by.
  std::string key;
  /// In the order of the columns; those that are missing are empty.
  std::vector<TableCell> cells = {};
  /// Whether the row's box, in the first column, is checked; none for a row without a box.
  std::optional<bool> checked = {};
};

/// Where texts stand in their column; leading is left where one reads from left to right.
enum class FERROWIND_EXPORT CellAlignment { kLeading, kCentre, kTrailing };

/// A column of a table.
struct FERROWIND_EXPORT TableColumn {
  /// Unique in the table, letter case counts.
  std::string key;
  /// The title; "" for none.
  std::string caption;
  /// Of the title as of the texts below it.
  CellAlignment alignment = CellAlignment::kLeading;
  /// Whether the column takes a share of the room that the others leave.
  bool stretches = false;
};

/// A table of cells that the program fills. One row is current while there are any: the one that the keyboard
/// acts on; where the design selects cells, one of its cells is.
///
/// A method that takes the key of a row or a column fails with Element not found (35601) and names the key
/// when there is no such one.
class FERROWIND_EXPORT Table : public Control {
 public:
  /// Replaces the columns and removes all rows. A key that is there twice is the failure Key not unique
  /// (35602), which names it and changes nothing. The first column is the current one where cells are
  /// selected.
  virtual void SetColumns(const std::vector<TableColumn>& columns) = 0;

  /// Replaces the rows. A key that is there twice is the failure Key not unique (35602), which names it; a
  /// row of more cells than there are columns is the failure Invalid argument; both change nothing.
  ///
  /// Rows are known again by their keys: what the operator had current, selected or checked stays so, also
  /// where a row says otherwise of its box (`SetChecked` is for that), as do the sorting and, as far as it
  /// can, the place that is scrolled to. Where the current row is gone, the one at its place is current, or
  /// the last; where none was, the first.
  virtual void SetRows(const std::vector<TableRow>& rows) = 0;
  /// What the table says while it has no rows; nothing at first.
  virtual void SetEmptyText(const std::string& text) = 0;
  /// All rows; the operator hides none.
  [[nodiscard]] virtual std::size_t RowCount() const = 0;
  /// The keys of all rows in the order on show.
  [[nodiscard]] virtual std::vector<std::string> RowKeys() const = 0;

  /// The key of the current row; nothing in an empty table.
  [[nodiscard]] virtual std::optional<std::string> CurrentRow() const = 0;
  /// The key of the current cell's column; nothing where rows are selected, and in an empty table.
  [[nodiscard]] virtual std::optional<std::string> CurrentColumn() const = 0;
  /// Makes the row current and the only selected one, and scrolls to it. The current column stays.
  virtual void SetCurrentRow(const std::string& row) = 0;
  /// Does nothing where rows are selected.
  virtual void SetCurrentColumn(const std::string& column) = 0;
  /// The keys of the selected rows in the order on show: the current row alone where the design does not let
  /// the operator select many.
  [[nodiscard]] virtual std::vector<std::string> SelectedRows() const = 0;

  /// Whether the row's box is checked; false for a row without one.
  [[nodiscard]] virtual bool Checked(const std::string& row) const = 0;
  /// Does nothing for a row without a box, and raises no event.
  virtual void SetChecked(const std::string& row, bool checked) = 0;

  /// Another row or cell is current, by the operator or the program, or since rows were replaced.
  [[nodiscard]] virtual Subscription OnCurrentChange(std::function<void()> handler) = 0;
  /// The operator pressed Enter, or double-clicked a row or cell, which is current by then.
  [[nodiscard]] virtual Subscription OnActivate(std::function<void()> handler) = 0;
  /// The operator checked a row's box or took the check off, by a click or with the space bar; raised for
  /// each row where several are selected.
  [[nodiscard]] virtual Subscription OnCheckChange(
      std::function<void(const std::string& row, bool checked)> handler) = 0;
};

}  // namespace ferrowind::platform
