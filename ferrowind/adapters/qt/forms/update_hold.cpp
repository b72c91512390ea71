#include "ferrowind/adapters/qt/forms/update_hold.h"

#include <QCoreApplication>
#include <QEvent>

namespace ferrowind::qt {

UpdateHold::UpdateHold(QWidget& window) : window_(&window) { window.installEventFilter(this); }

UpdateHold::~UpdateHold() {
  // The window asks for painting no second time until it has got the first.
  if (window_ && has_held_back_) {
    QCoreApplication::postEvent(window_, new QEvent(QEvent::UpdateRequest), Qt::LowEventPriority);
  }
}

bool UpdateHold::eventFilter(QObject* watched, QEvent* event) {
  if (watched != window_ || event->type() != QEvent::UpdateRequest) return false;
  has_held_back_ = true;
  return true;
}

}  // namespace ferrowind::qt
