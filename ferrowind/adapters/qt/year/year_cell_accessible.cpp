#include "ferrowind/adapters/qt/year/year_cell_accessible.h"

#include "ferrowind/adapters/qt/year/year_texts.h"

namespace ferrowind::qt {

bool YearCellAccessible::isValid() const {
  return !pane_.isNull() && place_.calendar < pane_->Days().CalendarCount() &&
         place_.day <= pane_->Days().DayCount();
}

QWindow* YearCellAccessible::window() const {
  return pane_.isNull() ? nullptr : pane_->window()->windowHandle();
}

QString YearCellAccessible::text(QAccessible::Text kind) const {
  if (!isValid() || kind != QAccessible::Name) return {};
  return TextOfDay(pane_->Days(), place_, pane_->locale());
}

QRect YearCellAccessible::rect() const {
  if (!isValid()) return {};
  return pane_->RectOf(place_).translated(pane_->viewport()->mapToGlobal(QPoint(0, 0)));
}

QAccessible::State YearCellAccessible::state() const {
  QAccessible::State state;
  if (!isValid()) {
    state.invalid = true;
    return state;
  }
  const QWidget& viewport = *pane_->viewport();
  const auto current = pane_->Cursor().Current();
  state.readOnly = true;
  state.selectable = true;
  state.focusable = true;
  state.extSelectable = true;
  state.selected = isSelected();
  state.focused = pane_->hasFocus() && current == place_;
  state.invisible = !viewport.isVisible() || !viewport.rect().intersects(pane_->RectOf(place_));
  state.disabled = !pane_->isEnabled();
  return state;
}

QAccessibleInterface* YearCellAccessible::parent() const {
  return pane_.isNull() ? nullptr : QAccessible::queryAccessibleInterface(pane_.data());
}

void* YearCellAccessible::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TableCellInterface) return static_cast<QAccessibleTableCellInterface*>(this);
  if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
  return nullptr;
}

bool YearCellAccessible::isSelected() const { return isValid() && pane_->Cursor().IsSelected(place_); }

QStringList YearCellAccessible::actionNames() const {
  return {setFocusAction(), toggleAction(), pressAction(), showMenuAction()};
}

void YearCellAccessible::doAction(const QString& name) {
  if (!isValid() || !pane_->isEnabled()) return;
  if (name == toggleAction()) {
    pane_->Toggle(place_);
    return;
  }
  // What follows may close the window, and this cell with it.
  const QPointer<YearPane> pane = pane_;
  const bool is_in_selection = name == showMenuAction() && isSelected();
  pane->setFocus(Qt::OtherFocusReason);
  if (is_in_selection) {
    pane->PointAt(place_);
  } else {
    pane->GoTo(place_);
  }
  if (pane && name == pressAction()) pane->Activate();
  if (pane && name == showMenuAction()) pane->AskForMenu();
}

}  // namespace ferrowind::qt
