#pragma once

#include <optional>

#include "ferrowind/adapters/qt/grid/grid_colors.h"
#include "ferrowind/adapters/qt/grid/grid_model.h"
#include "ferrowind/adapters/qt/grid/row_painter.h"
#include "ferrowind/adapters/qt/grid/text_cache.h"
#include "ferrowind/adapters/qt/grid/type_ahead.h"
#include "ferrowind/adapters/qt/grid/uniform_table_view.h"

namespace ferrowind::qt {

class GridHeader;

/// The table of a grid's visible rows: paints them and takes the operator's keys and clicks.
class GridView final : public UniformTableView {
  Q_OBJECT

 public:
  explicit GridView(QWidget* parent);

  /// The model must be a `GridModel`, or none.
  void setModel(QAbstractItemModel* model) override;
  [[nodiscard]] GridModel* Model() const { return model_; }
  [[nodiscard]] GridHeader& Header() const { return *header_; }
  [[nodiscard]] const GridColors& Colors() const { return colors_; }

  /// The column that the keyboard acts on, 1-based; 0 for none. Kept while no row is current.
  [[nodiscard]] int CurrentColumn() const;
  void SetCurrentColumn(int column);
  /// Makes the 0-based row current, and the only selected one; none when negative.
  void SetCurrentRow(int row) override;
  /// The 0-based row at the top; -1 without rows.
  [[nodiscard]] int FirstVisibleRow() const;
  void SetFirstVisibleRow(int row);

  /// Shows or hides what is in a group. A current row in it passes to the group's row.
  void SetExpanded(grid_engine::GroupId group, bool is_expanded);
  void keyboardSearch(const QString& text) override;

  /// The width at which the column's header and the cells of the rows at hand are read in full, within
  /// reason.
  [[nodiscard]] int FittingWidth(int column) const;

 signals:
  /// A mouse button was released over a row; the context-menu key counts as the right one.
  void MouseReleased(Qt::MouseButton button);
  void CopyAsked();
  void HeaderMenuAsked(int column);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool event(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  int sizeHintForColumn(int column) const override;
  [[nodiscard]] QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

 private:
  void ShowCutText(const QHelpEvent& event);
  void UpdateFont();
  void UpdateColors();
  /// Space by itself or with Ctrl, outside of a text that is being typed.
  void ToggleCurrentRow();
  /// Scrolls to a selected row where none is on show.
  void ShowSelection();
  void ApplyPendingFirstRow();
  [[nodiscard]] std::optional<grid_engine::GroupId> GroupInRow(int row) const;
  [[nodiscard]] QRect RowArea(int row) const;
  bool HandleGroupKey(QKeyEvent* event);
  /// Makes the row at the top current where none is, without selecting more than it.
  void BeginAtTop();
  void AskForMenuOfCurrentRow();
  [[nodiscard]] std::vector<ShownColumn> ColumnsWithin(const QRect& area) const;

  GridModel* model_ = nullptr;
  GridHeader* header_;
  GridColors colors_;
  TextCache texts_;
  TypeAhead type_ahead_;
  int current_column_ = 0;
  /// While the focus arrives, the base class would have a current row, out of sight as well.
  bool is_focus_arriving_ = false;
  /// Asked for before the view had a size.
  std::optional<int> pending_first_row_;
};

}  // namespace ferrowind::qt
