#pragma once

#include <QElapsedTimer>
#include <QString>
#include <set>
#include <vector>

#include "ferrowind/adapters/qt/grid/grid_colors.h"
#include "ferrowind/adapters/qt/grid/uniform_table_view.h"
#include "ferrowind/adapters/qt/table/cell_painter.h"
#include "ferrowind/adapters/qt/table/table_model.h"
#include "ferrowind/adapters/table_engine/column_widths.h"

namespace ferrowind::qt {

class TableHeader;

/// The widget of a table, which a form's layout names: paints the cells and takes the operator's keys and
/// clicks. Without a model it is empty.
class TableView final : public UniformTableView {
  Q_OBJECT

 public:
  explicit TableView(QWidget* parent = nullptr);

  /// The model must be a `TableModel`, or none.
  void setModel(QAbstractItemModel* model) override;
  [[nodiscard]] TableModel* Model() const { return model_; }
  [[nodiscard]] TableHeader& Header() const { return *header_; }
  [[nodiscard]] const GridColors& Colors() const { return colors_; }

  void SetSelectsCells(bool selects);
  [[nodiscard]] bool SelectsCells() const { return selects_cells_; }
  void SetSorts(bool sorts);
  [[nodiscard]] bool Sorts() const { return sorts_; }
  /// What it says while it has no rows.
  void SetEmptyText(const QString& text);
  /// To be called when the rows are others: assistive tools are told that text only while there are none.
  void TellWhetherEmpty();

  /// Gives each column that the operator has not resized the width at which its cells are read in full,
  /// within reason, and those that stretch what is left (`table_engine::WidthsWithin`).
  void FitColumns();
  /// Gives more width to those columns whose cells are wider by now; none asks for less, but for those that
  /// stretch.
  void WidenColumns();
  /// The operator's widths are forgotten: other columns have come.
  void ForgetWidths() { settled_columns_.clear(); }

 signals:
  /// The current cell is another one. Raised once the view is done with it.
  void CurrentMoved();
  void Activated();
  void CheckAsked(int row);
  void CheckSelectedAsked();
  void CopyAsked();
  /// The operator wants to choose what the rows are sorted by; `global` is where.
  void SortMenuAsked(const QPoint& global);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyboardSearch(const QString& text) override;
  bool event(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  [[nodiscard]] bool ChoosesRows() const override { return !selects_cells_; }
  [[nodiscard]] int sizeHintForColumn(int column) const override;

 private:
  class Work;

  void AskForSortMenu(const QPoint& in_header);
  void UpdateFont();
  void UpdateColors();
  /// The width of the column is the operator's from now on.
  void Settle(int column);
  void MeasureColumns();
  void ShareOutRoom();
  void ShowTip(const QHelpEvent& event);
  [[nodiscard]] bool HasBox(const QModelIndex& index) const;
  [[nodiscard]] bool IsOnBox(const QPoint& point) const;
  [[nodiscard]] int FittingWidth(int column) const;
  [[nodiscard]] QColor GroundOf(int row, int column) const;
  void PaintRow(QPainter& painter, int row);
  void PaintCurrentMark(QPainter& painter) const;
  void PaintEmpty(QPainter& painter) const;
  [[nodiscard]] bool IsTyping() const;

  TableModel* model_ = nullptr;
  TableHeader* header_;
  GridColors colors_;
  CellPainter cells_;
  QString empty_text_;
  bool selects_cells_ = false;
  bool sorts_ = false;
  /// Columns whose width is the operator's.
  std::set<int> settled_columns_;
  /// What the columns ask for, as measured last.
  std::vector<table_engine::ColumnWish> wishes_;
  bool shares_out_ = false;
  bool has_moved_ = false;
  int works_under_way_ = 0;
  QElapsedTimer since_typed_;
};

}  // namespace ferrowind::qt
