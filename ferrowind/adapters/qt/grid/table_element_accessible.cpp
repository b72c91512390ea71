#include "ferrowind/adapters/qt/grid/table_element_accessible.h"

#include <QHeaderView>

namespace ferrowind::qt {

bool TableElementAccessible::isValid() const {
  if (view_.isNull() || view_->model() == nullptr) return false;
  return row_ < view_->model()->rowCount() && column_ < view_->model()->columnCount();
}

QWindow* TableElementAccessible::window() const {
  return view_.isNull() ? nullptr : view_->window()->windowHandle();
}

QString TableElementAccessible::text(QAccessible::Text kind) const {
  if (!isValid() || column_ == kHeader) return {};
  if (kind != QAccessible::Name && kind != QAccessible::Description) return {};
  const int role = kind == QAccessible::Name ? Qt::AccessibleTextRole : Qt::AccessibleDescriptionRole;
  return (IsCell() ? Index().data(role) : view_->model()->headerData(column_, Qt::Horizontal, role))
      .toString();
}

QRect TableElementAccessible::rect() const {
  if (!isValid() || column_ == kHeader || view_->isColumnHidden(column_)) return {};
  if (IsCell()) return view_->visualRect(Index()).translated(view_->viewport()->mapToGlobal(QPoint(0, 0)));
  const QHeaderView& header = *view_->horizontalHeader();
  return {header.viewport()->mapToGlobal(QPoint(header.sectionViewportPosition(column_), 0)),
          QSize(header.sectionSize(column_), header.height())};
}

QAccessible::Role TableElementAccessible::role() const {
  if (IsCell()) return QAccessible::Cell;
  return IsColumnHeader() ? QAccessible::ColumnHeader : QAccessible::RowHeader;
}

QAccessible::State TableElementAccessible::state() const {
  QAccessible::State state;
  if (!isValid()) {
    state.invalid = true;
    return state;
  }
  if (IsCell()) state = StateOfCell();
  const QWidget& shown_in = IsCell() ? *view_->viewport() : *view_->horizontalHeader()->viewport();
  const QRect on_screen(shown_in.mapToGlobal(QPoint(0, 0)), shown_in.size());
  state.invisible = !shown_in.isVisible() || !on_screen.intersects(rect());
  state.disabled = !view_->isEnabled();
  return state;
}

QAccessible::State TableElementAccessible::StateOfCell() const {
  QAccessible::State state;
  state.readOnly = true;
  state.selectable = true;
  state.focusable = true;
  state.extSelectable = view_->selectionMode() != QAbstractItemView::SingleSelection;
  state.selected = isSelected();
  state.focused = view_->hasFocus() && view_->currentIndex() == Index();
  const QVariant box = Index().data(Qt::CheckStateRole);
  state.checkable = box.isValid();
  state.checked = box.isValid() && box.toInt() == Qt::Checked;
  return state;
}

QAccessibleInterface* TableElementAccessible::parent() const {
  return view_.isNull() ? nullptr : QAccessible::queryAccessibleInterface(view_.data());
}

void* TableElementAccessible::interface_cast(QAccessible::InterfaceType type) {
  if (type != QAccessible::TableCellInterface || !IsCell()) return nullptr;
  return static_cast<QAccessibleTableCellInterface*>(this);
}

QList<QAccessibleInterface*> TableElementAccessible::columnHeaderCells() const {
  if (!isValid()) return {};
  // The children of the table begin with the headers of the columns, behind that of the rows' own.
  return {parent()->child(column_ + 1)};
}

bool TableElementAccessible::isSelected() const {
  return isValid() && view_->selectionModel()->isSelected(Index());
}

}  // namespace ferrowind::qt
