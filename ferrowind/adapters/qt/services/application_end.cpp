#include "ferrowind/adapters/qt/services/application_end.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>

namespace ferrowind::qt {

bool IsApplicationEnding() {
  // The library keeps this to itself: only a loop that is refused tells.
  constexpr int kRefused = -1;
  QEventLoop probe;
  QCoreApplication::postEvent(&probe, new QEvent(QEvent::Quit), Qt::HighEventPriority);
  return probe.exec(QEventLoop::ExcludeUserInputEvents) == kRefused;
}

}  // namespace ferrowind::qt
