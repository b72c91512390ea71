#include "ferrowind/adapters/qt/grid/grid_element_accessible.h"

#include "ferrowind/adapters/qt/grid/grid_header.h"

namespace ferrowind::qt {

bool GridElementAccessible::isValid() const {
  if (view_.isNull() || view_->Model() == nullptr) return false;
  return row_ < view_->Model()->rowCount() && column_ < view_->Model()->columnCount();
}

QWindow* GridElementAccessible::window() const {
  return view_.isNull() ? nullptr : view_->window()->windowHandle();
}

QString GridElementAccessible::text(QAccessible::Text kind) const {
  if (!isValid() || column_ == kHeader) return {};
  if (kind != QAccessible::Name && kind != QAccessible::Description) return {};
  const int role = kind == QAccessible::Name ? Qt::AccessibleTextRole : Qt::AccessibleDescriptionRole;
  return (IsCell() ? Index().data(role) : view_->Model()->headerData(column_, Qt::Horizontal, role))
      .toString();
}

QRect GridElementAccessible::rect() const {
  if (!isValid() || column_ == kHeader || view_->isColumnHidden(column_)) return {};
  if (IsCell()) return view_->visualRect(Index()).translated(view_->viewport()->mapToGlobal(QPoint(0, 0)));
  const GridHeader& header = view_->Header();
  return {header.viewport()->mapToGlobal(QPoint(header.sectionViewportPosition(column_), 0)),
          QSize(header.sectionSize(column_), header.height())};
}

QAccessible::Role GridElementAccessible::role() const {
  if (IsCell()) return QAccessible::Cell;
  return IsColumnHeader() ? QAccessible::ColumnHeader : QAccessible::RowHeader;
}

QAccessible::State GridElementAccessible::state() const {
  QAccessible::State state;
  if (!isValid()) {
    state.invalid = true;
    return state;
  }
  if (IsCell()) state = StateOfCell();
  const QWidget& shown_in = IsCell() ? *view_->viewport() : *view_->Header().viewport();
  const QRect on_screen(shown_in.mapToGlobal(QPoint(0, 0)), shown_in.size());
  state.invisible = !shown_in.isVisible() || !on_screen.intersects(rect());
  state.disabled = !view_->isEnabled();
  return state;
}

QAccessible::State GridElementAccessible::StateOfCell() const {
  QAccessible::State state;
  state.readOnly = true;
  state.selectable = true;
  state.focusable = true;
  state.extSelectable = view_->selectionMode() != QAbstractItemView::SingleSelection;
  state.selected = isSelected();
  state.focused = view_->hasFocus() && view_->currentIndex() == Index();
  return state;
}

QAccessibleInterface* GridElementAccessible::parent() const {
  return view_.isNull() ? nullptr : QAccessible::queryAccessibleInterface(view_.data());
}

void* GridElementAccessible::interface_cast(QAccessible::InterfaceType type) {
  if (type != QAccessible::TableCellInterface || !IsCell()) return nullptr;
  return static_cast<QAccessibleTableCellInterface*>(this);
}

QList<QAccessibleInterface*> GridElementAccessible::columnHeaderCells() const {
  if (!isValid()) return {};
  // The children of the table begin with the headers of the columns, behind that of the rows' own.
  return {parent()->child(column_ + 1)};
}

bool GridElementAccessible::isSelected() const {
  return isValid() && view_->selectionModel()->isSelected(Index());
}

}  // namespace ferrowind::qt
