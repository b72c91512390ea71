#include "ferrowind/adapters/qt/controls/calendar_popup_keys.h"

#include <QCalendarWidget>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionComboBox>

namespace ferrowind::qt {

CalendarPopupKeys::CalendarPopupKeys(QDateEdit& edit) : QObject(&edit), edit_(edit) {
  edit_.installEventFilter(this);
}

bool CalendarPopupKeys::eventFilter(QObject* watched, QEvent* event) {
  if (watched != &edit_) return false;
  // Made by the first press. Its own editor for typed dates is never freed when a window closes over it, and
  // the edit below takes them anyway.
  if (event->type() == QEvent::MouseButtonPress) edit_.calendarWidget()->setDateEditEnabled(false);
  if (event->type() != QEvent::KeyPress) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  const bool is_alt_down = key->key() == Qt::Key_Down && key->modifiers().testFlag(Qt::AltModifier);
  const bool is_f4 = key->key() == Qt::Key_F4 && key->modifiers() == Qt::NoModifier;
  if (!is_alt_down && !is_f4) return false;
  OpenCalendar();
  return true;
}

void CalendarPopupKeys::OpenCalendar() {
  // The edit has no method for it, only its arrow.
  QStyleOptionComboBox option;
  option.initFrom(&edit_);
  option.editable = true;
  option.subControls = QStyle::SC_All;
  const QPointF arrow =
      edit_.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, &edit_).center();
  QMouseEvent press(QEvent::MouseButtonPress, arrow, edit_.mapToGlobal(arrow), Qt::LeftButton, Qt::LeftButton,
                    Qt::NoModifier);
  QCoreApplication::sendEvent(&edit_, &press);
}

}  // namespace ferrowind::qt
