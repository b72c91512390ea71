#include "ferrowind/adapters/qt/grid/column_drag.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QWidget>

namespace ferrowind::qt {

ColumnDrag::ColumnDrag(QWidget& area, ColumnDropTarget& header, ColumnDropTarget& group_box)
    : QObject(&area), area_(area), header_(header), group_box_(group_box) {}

void ColumnDrag::Begin(const DraggedColumn& dragged) {
  Cancel();
  dragged_ = dragged;
  label_ = new QLabel(dragged.caption, &area_);
  label_->setObjectName(QStringLiteral("draggedColumn"));
  label_->setAttribute(Qt::WA_TransparentForMouseEvents);
  label_->setAutoFillBackground(true);
  label_->setBackgroundRole(QPalette::Highlight);
  label_->setForegroundRole(QPalette::HighlightedText);
  label_->setMargin(5);
  label_->adjustSize();
  QCoreApplication::instance()->installEventFilter(this);
}

ColumnDropTarget* ColumnDrag::TargetAt(const QPoint& global) {
  if (group_box_.ShowDrop(dragged_, global)) {
    header_.HideDrop();
    return &group_box_;
  }
  group_box_.HideDrop();
  if (header_.ShowDrop(dragged_, global)) return &header_;
  header_.HideDrop();
  return nullptr;
}

void ColumnDrag::MoveTo(const QPoint& global) {
  if (!IsUnderWay() || label_ == nullptr) return;
  TargetAt(global);
  label_->move(area_.mapFromGlobal(global) + QPoint(12, 6));
  label_->show();
  label_->raise();
}

void ColumnDrag::DropAt(const QPoint& global) {
  if (!IsUnderWay()) return;
  ColumnDropTarget* target = TargetAt(global);
  const DraggedColumn dropped = dragged_;
  End();
  if (target != nullptr) {
    target->Drop(dropped, global);
  } else if (dropped.group_position > 0) {
    emit ChipDroppedOutside(dropped.group_position);
  }
}

void ColumnDrag::Cancel() {
  if (IsUnderWay()) End();
}

void ColumnDrag::End() {
  QCoreApplication::instance()->removeEventFilter(this);
  dragged_ = {};
  header_.HideDrop();
  group_box_.HideDrop();
  // Not at once: the label may be in the middle of an event.
  if (label_ != nullptr) {
    label_->hide();
    label_->deleteLater();
  }
}

bool ColumnDrag::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Escape) {
      if (event->type() == QEvent::KeyPress) Cancel();
      event->accept();
      return true;
    }
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace ferrowind::qt
