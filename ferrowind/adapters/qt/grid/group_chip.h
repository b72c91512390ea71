#pragma once

#include <QAbstractButton>
#include <QPoint>

#include "ferrowind/adapters/qt/grid/group_by_box.h"

namespace ferrowind::qt {

/// One group key in the group-by box: a button that turns the order of its groups, with a mark that removes
/// it.
///
/// Keys: Left and Right go to the neighbours, with Ctrl they move the chip; Delete removes it; Space turns
/// its order.
class GroupChip final : public QAbstractButton {
  Q_OBJECT

 public:
  explicit GroupChip(GroupByBox* box);

  /// `position` is 1-based.
  void Show(const GroupChipText& text, int position);
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  [[nodiscard]] QRect RemoveArea() const;

  GroupByBox& box_;
  GroupChipText text_;
  int position_ = 0;
  QPoint pressed_at_;
};

}  // namespace ferrowind::qt
