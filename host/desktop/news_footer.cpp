#include "host/desktop/news_footer.h"

#include <QApplication>
#include <QEvent>
#include <QWindow>
#include <utility>

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
  is_note_new_ = !text.isEmpty();
  Show();
}

void NewsFooter::Show() {
  Follow();
  if (!panel_) return;
  if (std::exchange(is_note_new_, false)) has_note_ = true;
  const QString note = has_note_ ? note_ : QString();
  if (trouble_.isEmpty() && note.isEmpty()) return Leave();
  panel_->Tell(trouble_, note);
  Place();
}

void NewsFooter::Follow() {
  QWidget* const window = QApplication::activeWindow();
  if (window == nullptr || window->windowType() != Qt::Window) return;
  if (window == &own_window_) {
    is_note_new_ = false;
    return;
  }
  const bool is_for_window = !trouble_.isEmpty() || (is_note_new_ && !note_.isEmpty());
  if (!is_for_window || (panel_ && panel_->parentWidget() == window)) return;
  auto* const panel = new FooterPanel(window);
  panel->Tell(trouble_, is_note_new_ ? note_ : QString());
  panel->FitInto(window->size());
  if (!panel->HasRoomIn(window->size())) {
    delete panel;
    return;
  }
  Leave();
  panel_ = panel;
  has_note_ = std::exchange(is_note_new_, false);
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
    if (event->type() == QEvent::Hide) {
      is_note_new_ = has_note_;
      Leave();
    }
  }
  return QObject::eventFilter(object, event);
}

}  // namespace ferrowind::host
