#include "host/desktop/trouble_footer.h"

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

TroubleFooter::TroubleFooter(QWidget& own_window) : own_window_(own_window) {
  // The application learns which window is active just after the signal.
  connect(qApp, &QGuiApplication::focusWindowChanged, this, &TroubleFooter::Follow, Qt::QueuedConnection);
}

TroubleFooter::~TroubleFooter() { Leave(); }

void TroubleFooter::Tell(const QString& text) {
  text_ = text;
  if (text_.isEmpty()) return Leave();
  Follow();
  if (!bar_) return;
  bar_->Tell(text_);
  Place();
}

void TroubleFooter::Follow() {
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
  Leave();
  bar_ = bar;
  margins_ = window->contentsMargins();
  connect(
      bar, &TroubleBar::Dismissed, this, [this] { Tell({}); }, Qt::QueuedConnection);
  window->installEventFilter(this);
  Place();
}

void TroubleFooter::Place() {
  QWidget& window = *bar_->parentWidget();
  const int height = bar_->heightForWidth(window.width());
  window.setContentsMargins(margins_ + QMargins(0, 0, 0, height));
  bar_->setGeometry(0, window.height() - height, window.width(), height);
  bar_->raise();
}

void TroubleFooter::Leave() {
  if (!bar_) return;
  bar_->parentWidget()->removeEventFilter(this);
  bar_->parentWidget()->setContentsMargins(margins_);
  delete bar_.data();
}

bool TroubleFooter::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::Resize && bar_ && bar_->parentWidget() == object) Place();
  return QObject::eventFilter(object, event);
}

}  // namespace ferrowind::host
