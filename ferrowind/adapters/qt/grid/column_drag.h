#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QString>

class QLabel;
class QWidget;

namespace ferrowind::qt {

/// What the operator drags: a column by its header, or a group by its chip.
struct DraggedColumn {
  /// 0-based column.
  int column = -1;
  /// The 1-based position among the group keys of a chip; 0 for a header.
  int group_position = 0;
  bool is_groupable = false;
  QString caption;
};

/// A place where dragged columns can be dropped.
class ColumnDropTarget {
 public:
  virtual ~ColumnDropTarget() = default;
  /// Shows where `dragged` would land at that place on the screen and returns true; false when it cannot land
  /// there.
  virtual bool ShowDrop(const DraggedColumn& dragged, const QPoint& global) = 0;
  virtual void HideDrop() = 0;
  /// Precondition: `ShowDrop` just returned true for that place.
  virtual void Drop(const DraggedColumn& dragged, const QPoint& global) = 0;
};

/// A drag of a column between the header and the group-by box, by plain mouse events: what is dragged is a
/// child of `area` that follows the mouse. Escape cancels it.
class ColumnDrag final : public QObject {
  Q_OBJECT

 public:
  /// The targets must live as long as drags are made.
  ColumnDrag(QWidget& area, ColumnDropTarget& header, ColumnDropTarget& group_box);

  [[nodiscard]] bool IsUnderWay() const { return dragged_.column >= 0; }
  void Begin(const DraggedColumn& dragged);
  void MoveTo(const QPoint& global);
  void DropAt(const QPoint& global);
  void Cancel();

 signals:
  /// A chip was dropped where nothing takes it.
  void ChipDroppedOutside(int group_position);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  ColumnDropTarget* TargetAt(const QPoint& global);
  void End();

  QWidget& area_;
  ColumnDropTarget& header_;
  ColumnDropTarget& group_box_;
  QPointer<QLabel> label_;
  DraggedColumn dragged_;
};

}  // namespace ferrowind::qt
