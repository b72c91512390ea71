#include "ferrowind/adapters/qt/year/year_accessible.h"

#include "ferrowind/adapters/qt/dates/long_date.h"
#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/adapters/qt/year/year_cell_accessible.h"
#include "ferrowind/adapters/qt/year/year_pane.h"

namespace ferrowind::qt {

using year_engine::YearPlace;

YearAccessible::YearAccessible(YearPane& pane) : QAccessibleWidget(&pane, QAccessible::Table), pane_(pane) {}

YearAccessible::~YearAccessible() { ForgetCells(); }

QAccessibleInterface* YearAccessible::Make(const QString& class_name, QObject* object) {
  auto* pane = qobject_cast<YearPane*>(object);
  if (pane == nullptr || class_name != QLatin1String(YearPane::staticMetaObject.className())) return nullptr;
  return new YearAccessible(*pane);
}

int YearAccessible::ChildOf(const year_engine::YearDays& days, const YearPlace& place) {
  return place.calendar * days.DayCount() + place.day - 1;
}

void* YearAccessible::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

// Children

int YearAccessible::childCount() const { return rowCount() * columnCount(); }

QAccessibleInterface* YearAccessible::child(int index) const {
  if (index < 0 || index >= childCount()) return nullptr;
  const auto [place, is_new] = cells_.try_emplace(index, QAccessible::Id{0});
  if (is_new) {
    place->second = QAccessible::registerAccessibleInterface(
        new YearCellAccessible(pane_, {index / columnCount(), index % columnCount() + 1}));
  }
  return QAccessible::accessibleInterface(place->second);
}

int YearAccessible::indexOfChild(const QAccessibleInterface* child) const {
  const auto* cell = dynamic_cast<const YearCellAccessible*>(child);
  return cell == nullptr || !cell->isValid() ? -1 : ChildOf(pane_.Days(), cell->Place());
}

QAccessibleInterface* YearAccessible::childAt(int x, int y) const {
  const auto place = pane_.PlaceAt(pane_.viewport()->mapFromGlobal(QPoint(x, y)));
  return place ? child(ChildOf(pane_.Days(), *place)) : nullptr;
}

QAccessibleInterface* YearAccessible::focusChild() const {
  const auto current = pane_.Cursor().Current();
  return pane_.hasFocus() && current ? child(ChildOf(pane_.Days(), *current)) : nullptr;
}

void YearAccessible::ForgetCells() {
  for (const auto& [index, id] : cells_) QAccessible::deleteAccessibleInterface(id);
  cells_.clear();
}

void YearAccessible::modelChange(QAccessibleTableModelChangeEvent* /*event*/) { ForgetCells(); }

// Table

int YearAccessible::rowCount() const { return pane_.Days().CalendarCount(); }

int YearAccessible::columnCount() const { return pane_.Days().DayCount(); }

QAccessibleInterface* YearAccessible::cellAt(int row, int column) const {
  if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount()) return nullptr;
  return child(row * columnCount() + column);
}

QString YearAccessible::columnDescription(int column) const {
  if (column < 0 || column >= columnCount()) return {};
  return LongDay(ToQt(pane_.Days().DateOf(column + 1)), pane_.locale());
}

QString YearAccessible::rowDescription(int row) const {
  if (row < 0 || row >= rowCount()) return {};
  return ToQt(pane_.Days().Content().calendars[static_cast<std::size_t>(row)].description);
}

int YearAccessible::selectedCellCount() const { return static_cast<int>(pane_.Cursor().Selected().size()); }

QList<QAccessibleInterface*> YearAccessible::selectedCells() const {
  QList<QAccessibleInterface*> cells;
  for (const YearPlace& place : pane_.Cursor().Selected()) cells.append(child(ChildOf(pane_.Days(), place)));
  return cells;
}

}  // namespace ferrowind::qt
