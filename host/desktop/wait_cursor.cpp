#include "host/desktop/wait_cursor.h"

#include <QApplication>

namespace ferrowind::host {

WaitCursor::WaitCursor(OperatorNews& news)
    : busy_changed_(news.OnBusy([this](bool is_busy) { Follow(is_busy); })) {}

WaitCursor::~WaitCursor() { Follow(false); }

void WaitCursor::Follow(bool is_busy) {
  if (is_busy == is_on_) return;
  is_on_ = is_busy;
  if (is_busy) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

}  // namespace ferrowind::host
