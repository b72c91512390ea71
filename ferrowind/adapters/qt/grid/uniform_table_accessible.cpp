#include "ferrowind/adapters/qt/grid/uniform_table_accessible.h"

#include <algorithm>

#include "ferrowind/adapters/qt/grid/table_element_accessible.h"
#include "ferrowind/adapters/qt/grid/uniform_table_view.h"

namespace ferrowind::qt {

namespace {

constexpr int kHeader = TableElementAccessible::kHeader;

}  // namespace

UniformTableAccessible::UniformTableAccessible(UniformTableView& view)
    : QAccessibleWidget(&view, QAccessible::Table), view_(view) {}

UniformTableAccessible::~UniformTableAccessible() { ForgetElements(); }

QAccessibleInterface* UniformTableAccessible::Make(const QString& class_name, QObject* object) {
  auto* view = qobject_cast<UniformTableView*>(object);
  if (view == nullptr || class_name != QLatin1String(UniformTableView::staticMetaObject.className()))
    return nullptr;
  return new UniformTableAccessible(*view);
}

void* UniformTableAccessible::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

// Children

int UniformTableAccessible::childCount() const { return (rowCount() + 1) * (columnCount() + 1); }

QAccessibleInterface* UniformTableAccessible::child(int index) const {
  if (index < 0 || index >= childCount()) return nullptr;
  const int in_row = columnCount() + 1;
  return ElementAt(index / in_row + kHeader, index % in_row + kHeader);
}

int UniformTableAccessible::indexOfChild(const QAccessibleInterface* child) const {
  const auto* element = dynamic_cast<const TableElementAccessible*>(child);
  if (element == nullptr || !element->isValid()) return -1;
  return (element->Row() - kHeader) * (columnCount() + 1) + element->Column() - kHeader;
}

QAccessibleInterface* UniformTableAccessible::childAt(int x, int y) const {
  const QModelIndex cell = view_.indexAt(view_.viewport()->mapFromGlobal(QPoint(x, y)));
  return cell.isValid() ? ElementAt(cell.row(), cell.column()) : nullptr;
}

QAccessibleInterface* UniformTableAccessible::focusChild() const {
  const QModelIndex current = view_.currentIndex();
  return view_.hasFocus() && current.isValid() ? ElementAt(current.row(), current.column()) : nullptr;
}

QAccessibleInterface* UniformTableAccessible::ElementAt(int row, int column) const {
  const auto [place, is_new] = elements_.try_emplace({row, column}, QAccessible::Id{0});
  if (is_new)
    place->second = QAccessible::registerAccessibleInterface(new TableElementAccessible(view_, row, column));
  return QAccessible::accessibleInterface(place->second);
}

void UniformTableAccessible::ForgetElements() {
  for (const auto& [place, id] : elements_) QAccessible::deleteAccessibleInterface(id);
  elements_.clear();
}

// What is known of a place stays true of it, whatever stands there; only the places that are gone are not
// worth keeping.
void UniformTableAccessible::modelChange(QAccessibleTableModelChangeEvent* /*event*/) { ForgetElements(); }

// Table

int UniformTableAccessible::rowCount() const {
  return view_.model() == nullptr ? 0 : view_.model()->rowCount();
}

int UniformTableAccessible::columnCount() const {
  return view_.model() == nullptr ? 0 : view_.model()->columnCount();
}

QAccessibleInterface* UniformTableAccessible::cellAt(int row, int column) const {
  return HasRow(row) && column >= 0 && column < columnCount() ? ElementAt(row, column) : nullptr;
}

QString UniformTableAccessible::columnDescription(int column) const {
  return column >= 0 && column < columnCount() ? ElementAt(kHeader, column)->text(QAccessible::Name)
                                               : QString();
}

// Selection

int UniformTableAccessible::selectedCellCount() const { return selectedRowCount() * columnCount(); }

QList<QAccessibleInterface*> UniformTableAccessible::selectedCells() const {
  QList<QAccessibleInterface*> cells;
  for (const int row : selectedRows()) {
    for (int column = 0; column < columnCount(); ++column) cells.append(ElementAt(row, column));
  }
  return cells;
}

int UniformTableAccessible::selectedRowCount() const { return static_cast<int>(selectedRows().size()); }

QList<int> UniformTableAccessible::selectedRows() const {
  QList<int> rows;
  if (view_.model() == nullptr) return rows;
  for (const QItemSelectionRange& range : view_.selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) rows.append(row);
  }
  std::sort(rows.begin(), rows.end());
  return rows;
}

bool UniformTableAccessible::isRowSelected(int row) const {
  return HasRow(row) && view_.selectionModel()->isSelected(view_.model()->index(row, 0));
}

bool UniformTableAccessible::selectRow(int row) {
  if (!HasRow(row)) return false;
  if (view_.selectionMode() == QAbstractItemView::ExtendedSelection) {
    view_.selectionModel()->select(view_.model()->index(row, 0),
                                   QItemSelectionModel::Select | QItemSelectionModel::Rows);
  } else {
    view_.SetCurrentRow(row);
  }
  return true;
}

bool UniformTableAccessible::unselectRow(int row) {
  if (!isRowSelected(row) || view_.selectionMode() != QAbstractItemView::ExtendedSelection) return false;
  view_.selectionModel()->select(view_.model()->index(row, 0),
                                 QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
  return !isRowSelected(row);
}

}  // namespace ferrowind::qt
