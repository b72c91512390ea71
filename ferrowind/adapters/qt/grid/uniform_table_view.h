#pragma once

#include <QStandardItemModel>
#include <QTableView>

namespace ferrowind::qt {

/// A table view whose rows are all of one height, which selects whole rows and scrolls by rows.
///
/// A move by key selects the row that it goes to, with Shift all rows on the way. With multiple selection
/// Ctrl and an arrow or page key move the current row alone; Ctrl+Home and Ctrl+End go to the first and the
/// last row and select it; so do Home and End where rows are chosen and not cells. A click beside the rows
/// changes nothing.
///
/// `QTableView` keeps an entry for each row in its vertical header, so that inserting rows and finding their
/// places takes time and memory for all of them. Here a row's place is a multiplication: expanding a group
/// costs the same whether it holds ten rows or a million. Columns are left to the horizontal header.
class UniformTableView : public QTableView {
  Q_OBJECT

 public:
  explicit UniformTableView(QWidget* parent);

  void setModel(QAbstractItemModel* model) override;
  void reset() override;
  [[nodiscard]] QRect visualRect(const QModelIndex& index) const override;
  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
  [[nodiscard]] QModelIndex indexAt(const QPoint& point) const override;

  [[nodiscard]] int RowHeight() const { return row_height_; }
  void SetRowHeight(int height);
  [[nodiscard]] int RowCount() const;
  /// The row at that height of the viewport; -1 where there is none.
  [[nodiscard]] int RowAt(int y) const;
  [[nodiscard]] int TopOf(int row) const;
  [[nodiscard]] int FirstRow() const;
  /// How many rows fit into the viewport as a whole, at least one.
  [[nodiscard]] int RowsPerPage() const;
  [[nodiscard]] static bool IsMove(int key) { return key >= Qt::Key_Home && key <= Qt::Key_PageDown; }

  /// Makes the row current and the only selected one, and lets the next range begin there.
  void GoTo(const QModelIndex& index);
  /// Does so with the row, none when negative, and keeps the current column.
  virtual void SetCurrentRow(int row);

 protected:
  void updateGeometries() override;
  void scrollContentsBy(int dx, int dy) override;
  void rowsInserted(const QModelIndex& parent, int first, int last) override;
  [[nodiscard]] int verticalOffset() const override;
  /// Whether Home and End go to the first and the last row without Ctrl, too: no cell of a row is chosen.
  [[nodiscard]] virtual bool ChoosesRows() const { return false; }
  [[nodiscard]] bool isIndexHidden(const QModelIndex& index) const override;
  [[nodiscard]] QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                                     const QEvent* event) const override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void keyPressEvent(QKeyEvent* event) override;
  void setSelection(const QRect& area, QItemSelectionModel::SelectionFlags command) override;
  [[nodiscard]] QRegion visualRegionForSelection(const QItemSelection& selection) const override;

 private:
  /// Whether the key moves the current row and leaves the selection as it is.
  [[nodiscard]] bool MovesAlone(const QKeyEvent& event) const;
  void RowCountChanged();
  /// The row that begins or would begin at or before that height, which may be before the first or behind the
  /// last.
  [[nodiscard]] int UnboundRowAt(int y) const;
  /// The first column on show from that place in that direction; -1 where there is none.
  [[nodiscard]] int FirstColumnFrom(int visual, int step) const;
  /// The next column on show to the right (or left) of that one; the same where there is none.
  [[nodiscard]] int NextColumn(int column, int step) const;

  /// What the vertical header shows: nothing.
  QStandardItemModel no_rows_;
  QMetaObject::Connection rows_removed_;
  int row_height_ = 20;
  bool updates_geometries_ = false;
  /// While the base class, in some of its versions, asks whether the new current row begins a range.
  bool follows_current_ = false;
  bool goes_to_row_ = false;
};

}  // namespace ferrowind::qt
