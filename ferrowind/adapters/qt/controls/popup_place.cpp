#include "ferrowind/adapters/qt/controls/popup_place.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QWidget>

namespace ferrowind::qt {
namespace {

class LastInput : public QObject {
 public:
  using QObject::QObject;
  bool IsKey() const { return is_key_; }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) is_key_ = true;
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease)
      is_key_ = false;
    return QObject::eventFilter(watched, event);
  }

 private:
  bool is_key_ = false;
};

/// Owned by the application, so that it goes with it.
LastInput* last_input = nullptr;

}  // namespace

void NoticeKeys() {
  if (last_input != nullptr || qApp == nullptr) return;
  last_input = new LastInput(qApp);
  qApp->installEventFilter(last_input);
  QObject::connect(last_input, &QObject::destroyed, [] { last_input = nullptr; });
}

QPoint PopupPlace() {
  QWidget* focused = QApplication::focusWidget();
  if (last_input == nullptr || !last_input->IsKey() || focused == nullptr) return QCursor::pos();
  const QRect item = focused->inputMethodQuery(Qt::ImCursorRectangle).toRect();
  // Item views tell the place in their viewport.
  const auto* scrolled = qobject_cast<QAbstractScrollArea*>(focused);
  const QWidget* origin = scrolled != nullptr ? scrolled->viewport() : focused;
  return origin->mapToGlobal(origin->rect().intersected(item).bottomLeft());
}

}  // namespace ferrowind::qt
