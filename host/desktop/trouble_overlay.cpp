#include "host/desktop/trouble_overlay.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QWindow>

namespace ferrowind::host {
namespace {

/// A window keeps at least three quarters of its height to itself.
constexpr int kShareOfHeight = 4;

bool HasRoomFor(const TroubleBar& bar, const QWidget& window) {
  return bar.heightForWidth(window.width()) * kShareOfHeight <= window.height();
}

}  // namespace

TroubleOverlay::TroubleOverlay(QWidget& own_window) : own_window_(own_window) {
  // The application learns which window is active just after the signal.
  connect(qApp, &QGuiApplication::focusWindowChanged, this, &TroubleOverlay::Follow, Qt::QueuedConnection);
}

TroubleOverlay::~TroubleOverlay() { delete bar_.data(); }

void TroubleOverlay::Tell(const QString& text) {
  text_ = text;
  if (text_.isEmpty()) {
    delete bar_.data();
    return;
  }
  Follow();
  if (!bar_) return;
  bar_->Tell(text_);
  Place();
}

void TroubleOverlay::Follow() {
  QWidget* const window = QApplication::activeWindow();
  if (text_.isEmpty() || window == nullptr || window == &own_window_ ||
      qobject_cast<QMessageBox*>(window) != nullptr)
    return;
  if (bar_ && bar_->parentWidget() == window) return;
  auto* const bar = new TroubleBar(window);
  bar->Tell(text_);
  if (!HasRoomFor(*bar, *window)) {
    delete bar;
    return;
  }
  delete bar_.data();
  bar_ = bar;
  connect(
      bar, &TroubleBar::Dismissed, this, [this] { Tell({}); }, Qt::QueuedConnection);
  window->installEventFilter(this);
  Place();
}

void TroubleOverlay::Place() {
  const QWidget& window = *bar_->parentWidget();
  const int height = bar_->heightForWidth(window.width());
  bar_->setGeometry(0, window.height() - height, window.width(), height);
  bar_->raise();
}

bool TroubleOverlay::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::Resize && bar_ && bar_->parentWidget() == object) Place();
  return QObject::eventFilter(object, event);
}

}  // namespace ferrowind::host
