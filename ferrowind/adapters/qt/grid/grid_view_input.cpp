// The operator's keys and clicks.
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>

#include "ferrowind/adapters/qt/grid/grid_header.h"
#include "ferrowind/adapters/qt/grid/grid_view.h"

namespace ferrowind::qt {

using grid_engine::GroupId;
using grid_engine::VisibleRow;

void GridView::mousePressEvent(QMouseEvent* event) {
  const int row = RowAt(event->pos().y());
  if (const auto group = GroupInRow(row); group && event->button() == Qt::LeftButton) {
    const QRect expander = RowPainter::ExpanderArea(RowArea(row), group->level, layoutDirection());
    if (expander.contains(event->pos())) {
      setFocus(Qt::MouseFocusReason);
      SetExpanded(*group, !model_->Content().Rows().Groups().IsExpanded(*group));
      event->accept();
      return;
    }
  }
  UniformTableView::mousePressEvent(event);
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
  const int row = RowAt(event->pos().y());
  const auto group = GroupInRow(row);
  if (group && event->button() == Qt::LeftButton) {
    SetExpanded(*group, !model_->Content().Rows().Groups().IsExpanded(*group));
    return;
  }
  UniformTableView::mouseDoubleClickEvent(event);
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
  UniformTableView::mouseReleaseEvent(event);
  // Last, since who listens may open a menu and close the window from it.
  if (RowAt(event->pos().y()) >= 0) emit MouseReleased(event->button());
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  if (event->reason() == QContextMenuEvent::Keyboard) AskForMenuOfCurrentRow();
}

void GridView::AskForMenuOfCurrentRow() {
  if (currentIndex().isValid()) emit MouseReleased(Qt::RightButton);
}

void GridView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    emit CopyAsked();
    return;
  }
  if (event->matches(QKeySequence::SelectAll)) BeginAtTop();
  if (event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier)) {
    emit HeaderMenuAsked(std::max(CurrentColumn() - 1, 0));
    return;
  }
  // For keyboards without a menu key.
  if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
    AskForMenuOfCurrentRow();
    return;
  }
  // The key ends the search first; the window may stand for it the next time.
  const bool ends_search = event->key() == Qt::Key_Escape && type_ahead_.IsUnderWay();
  if (IsMove(event->key()) || ends_search) type_ahead_.Forget();
  if (ends_search) return;
  if (!type_ahead_.IsUnderWay() && HandleGroupKey(event)) return;
  if (event->key() == Qt::Key_Space) {
    // Names have blanks: one that follows typed letters at once is part of the name.
    if (type_ahead_.IsUnderWay() && !event->modifiers().testFlag(Qt::ControlModifier)) {
      keyboardSearch(event->text());
    } else {
      ToggleCurrentRow();
    }
    return;
  }
  UniformTableView::keyPressEvent(event);
}

void GridView::ToggleCurrentRow() {
  type_ahead_.Forget();
  if (selectionMode() != ExtendedSelection || !currentIndex().isValid()) return;
  selectionModel()->select(currentIndex(), QItemSelectionModel::Toggle | QItemSelectionModel::Rows);
}

bool GridView::HandleGroupKey(QKeyEvent* event) {
  const int row = currentIndex().row();
  const auto group = GroupInRow(row);
  const bool is_plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  const bool is_mirrored = layoutDirection() == Qt::RightToLeft;
  int key = event->key();
  if (is_mirrored && key == Qt::Key_Left) {
    key = Qt::Key_Right;
  } else if (is_mirrored && key == Qt::Key_Right) {
    key = Qt::Key_Left;
  }
  if (!group) {
    if (!is_plain || key != Qt::Key_Left || row < 0) return false;
    const auto& groups = model_->Content().Rows().Groups();
    if (groups.LevelCount() == 0 ||
        header_->visualIndex(currentIndex().column()) > header_->FirstVisibleVisual()) {
      return false;
    }
    // At the first column there is nothing further left than the group.
    const VisibleRow shown = model_->Content().Rows().RowAt(static_cast<std::uint32_t>(row));
    const GroupId around = groups.GroupOfPosition(shown.position, groups.LevelCount() - 1);
    if (const auto group_row = groups.RowOf(around)) SetCurrentRow(static_cast<int>(*group_row));
    return true;
  }
  const auto& groups = model_->Content().Rows().Groups();
  const bool is_expanded = groups.IsExpanded(*group);
  switch (key) {
    case Qt::Key_Left:
      if (!is_plain) return false;
      if (is_expanded) {
        SetExpanded(*group, false);
      } else if (group->level > 0) {
        if (const auto parent = groups.RowOf(groups.ParentOf(*group)))
          SetCurrentRow(static_cast<int>(*parent));
      }
      return true;
    case Qt::Key_Right:
      if (!is_plain) return false;
      if (is_expanded) {
        SetCurrentRow(row + 1);
      } else {
        SetExpanded(*group, true);
      }
      return true;
    case Qt::Key_Minus:
      SetExpanded(*group, false);
      return true;
    case Qt::Key_Plus:
      SetExpanded(*group, true);
      return true;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!is_plain) return false;
      SetExpanded(*group, !is_expanded);
      return true;
    default:
      return false;
  }
}

void GridView::keyboardSearch(const QString& text) {
  if (model_ == nullptr || model_->rowCount() == 0) return;
  int column = CurrentColumn() - 1;
  if (column < 0) column = header_->FirstVisibleColumn();
  if (column < 0) return;
  const auto row = type_ahead_.Search(text, model_->Content(), static_cast<std::int16_t>(column + 1),
                                      currentIndex().isValid() ? currentIndex().row() : -1);
  if (row) SetCurrentRow(*row);
}

}  // namespace ferrowind::qt
