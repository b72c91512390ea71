#include "host/desktop/news_footer.h"

#include <QApplication>
#include <QEvent>
#include <QWindow>

namespace ferrowind::host {

NewsFooter::NewsFooter(QWidget& own_window) : own_window_(own_window) {
  // The application learns which window is active just after the signal.
  connect(qApp, &QGuiApplication::focusWindowChanged, this, &NewsFooter::Follow, Qt::QueuedConnection);
}

NewsFooter::~NewsFooter() { Leave(); }

void NewsFooter::TellTrouble(const QString& text) {
  trouble_ = text;
  Show();
}

void NewsFooter::TellNote(const QString& text) {
  note_ = text;
  Show();
}

void NewsFooter::Show() {
  if (trouble_.isEmpty() && note_.isEmpty()) return Leave();
  Follow();
  if (!panel_) return;
  panel_->Tell(trouble_, note_);
  Place();
}

void NewsFooter::Follow() {
  QWidget* const window = QApplication::activeWindow();
  if ((trouble_.isEmpty() && note_.isEmpty()) || window == nullptr || window == &own_window_ ||
      window->windowType() != Qt::Window || (panel_ && panel_->parentWidget() == window))
    return;
  auto* const panel = new FooterPanel(window);
  panel->Tell(trouble_, note_);
  panel->FitInto(window->size());
  if (!panel->HasRoomIn(window->size())) {
    delete panel;
    return;
  }
  Leave();
  panel_ = panel;
  margins_ = window->contentsMargins();
  connect(panel, &FooterPanel::Dismissed, this, &NewsFooter::Dismissed, Qt::QueuedConnection);
  window->installEventFilter(this);
  panel->show();
  Place();
  emit Carried(true);
}

void NewsFooter::Place() {
  QWidget& window = *panel_->parentWidget();
  panel_->FitInto(window.size());
  const int height = panel_->heightForWidth(window.width());
  window.setContentsMargins(margins_ + QMargins(0, 0, 0, height));
  panel_->setGeometry(0, window.height() - height, window.width(), height);
  panel_->raise();
}

void NewsFooter::Leave() {
  if (!panel_) return;
  FooterPanel* const panel = panel_;
  panel_.clear();
  panel->parentWidget()->removeEventFilter(this);
  panel->parentWidget()->setContentsMargins(margins_);
  panel->hide();
  panel->setParent(nullptr);
  // Its own button may be what dismissed it.
  panel->deleteLater();
  emit Carried(false);
}

bool NewsFooter::eventFilter(QObject* object, QEvent* event) {
  if (panel_ && panel_->parentWidget() == object) {
    if (event->type() == QEvent::Resize) Place();
    // A window that is closed or minimised tells nobody.
    if (event->type() == QEvent::Hide) Leave();
  }
  return QObject::eventFilter(object, event);
}

}  // namespace ferrowind::host
