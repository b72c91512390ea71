#pragma once

#include <QHeaderView>
#include <QPoint>
#include <map>
#include <optional>

#include "ferrowind/adapters/qt/grid/column_drag.h"

namespace ferrowind::qt {

class GridView;

/// The headers of a grid: captions, sort marks with their numbers, clicks, drags and widths.
class GridHeader final : public QHeaderView, public ColumnDropTarget {
  Q_OBJECT

 public:
  explicit GridHeader(GridView* view);

  void SetDrag(ColumnDrag* drag) { drag_ = drag; }

  /// The leftmost column on show, and its place; -1 when all are hidden.
  [[nodiscard]] int FirstVisibleColumn() const;
  [[nodiscard]] int FirstVisibleVisual() const;
  /// The width at which the caption and a sort mark are read in full.
  [[nodiscard]] int FittingWidth(int column) const;

  /// The width that a column has, or will have again when it is no longer hidden.
  [[nodiscard]] int KeptWidth(int column) const;
  void SetKeptWidth(int column, int width);

  bool ShowDrop(const DraggedColumn& dragged, const QPoint& global) override;
  void HideDrop() override;
  void Drop(const DraggedColumn& dragged, const QPoint& global) override;

  [[nodiscard]] QSize sizeHint() const override;

 signals:
  /// `extends` is true with the Shift key held.
  void Clicked(int column, bool extends);
  void MenuAsked(int column, const QPoint& global);
  void ResizedByOperator(int column);
  /// The chip of that group was dropped on the headers.
  void ChipDropped(int group_position);

 protected:
  bool viewportEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void paintSection(QPainter* painter, const QRect& area, int column) const override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  /// The room that a section's sort mark and its number take.
  [[nodiscard]] int SortMarkWidth(int column) const;
  [[nodiscard]] bool IsOnResizeHandle(int x) const;
  void PressSection(const QMouseEvent& event);
  /// The place before which a column dropped at `x` goes, 0 to `count()`.
  [[nodiscard]] int DropPlaceAt(int x) const;

  GridView* view_;
  ColumnDrag* drag_ = nullptr;
  int pressed_column_ = -1;
  QPoint pressed_at_;
  bool is_pressed_ = false;
  int resized_column_ = -1;
  std::map<int, int> kept_widths_;
  std::optional<int> drop_place_;
};

}  // namespace ferrowind::qt
