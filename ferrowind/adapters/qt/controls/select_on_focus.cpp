#include "ferrowind/adapters/qt/controls/select_on_focus.h"

#include <QFocusEvent>
#include <utility>

namespace ferrowind::qt {

SelectOnFocus::SelectOnFocus(QLineEdit& line) : QObject(&line), line_(line) {
  line_.installEventFilter(this);
}

bool SelectOnFocus::eventFilter(QObject* watched, QEvent* event) {
  if (watched != &line_) return false;
  if (event->type() == QEvent::FocusIn) {
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    is_focused_by_press_ = reason == Qt::MouseFocusReason;
    if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) line_.selectAll();
  }
  if (event->type() == QEvent::MouseButtonRelease && std::exchange(is_focused_by_press_, false) &&
      !line_.hasSelectedText()) {
    line_.selectAll();
  }
  return false;
}

}  // namespace ferrowind::qt
