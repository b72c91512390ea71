#pragma once

#include <QFrame>
#include <optional>
#include <vector>

#include "ferrowind/adapters/qt/grid/column_drag.h"

class QHBoxLayout;
class QLabel;

namespace ferrowind::qt {

class GroupChip;

/// What a chip of the group-by box shows.
struct GroupChipText {
  /// 0-based column.
  int column = 0;
  QString caption;
  bool is_descending = false;
};

/// The strip above a grid that shows by which columns it is grouped, a chip for each, and takes headers
/// dropped on it.
class GroupByBox final : public QFrame, public ColumnDropTarget {
  Q_OBJECT

 public:
  explicit GroupByBox(QWidget* parent);

  void SetDrag(ColumnDrag* drag) { drag_ = drag; }
  [[nodiscard]] ColumnDrag* Drag() const { return drag_; }
  void SetChips(const std::vector<GroupChipText>& chips);
  /// Gives the focus to the chip at the 1-based position, if there is one.
  void FocusChip(int position);

  bool ShowDrop(const DraggedColumn& dragged, const QPoint& global) override;
  void HideDrop() override;
  void Drop(const DraggedColumn& dragged, const QPoint& global) override;

 signals:
  // Positions are 1-based among the group keys.
  /// A column is to be the group key at `position`, those from there on going one further.
  void GroupAsked(int column, int position);
  void MoveAsked(int from, int to);
  void RemoveAsked(int position);
  void DirectionToggled(int position);
  void MenuAsked(int position, const QPoint& global);
  /// The operator is done with the box.
  void LeaveAsked();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] int DropPositionAt(int x) const;

  QHBoxLayout* layout_;
  QLabel* hint_;
  std::vector<GroupChip*> chips_;
  ColumnDrag* drag_ = nullptr;
  /// The position before which a drop would go.
  std::optional<int> drop_position_;
};

}  // namespace ferrowind::qt
