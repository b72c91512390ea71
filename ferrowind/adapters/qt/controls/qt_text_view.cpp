#include "ferrowind/adapters/qt/controls/qt_text_view.h"

#include <QApplication>

namespace ferrowind::qt {

QtTextView::QtTextView(QPlainTextEdit& edit) : QtControl(edit), edit_(edit) {
  edit_.setReadOnly(true);
  // With a cursor to select by key; what is read-only would have none otherwise.
  edit_.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  edit_.setTabChangesFocus(true);
  edit_.setUndoRedoEnabled(false);
  // The frame tells the focus, but only what is inside of it is painted when that comes and goes.
  QObject::connect(qApp, &QApplication::focusChanged, Context(), [this](QWidget* before, QWidget* now) {
    if (before == &edit_ || now == &edit_) edit_.update();
  });
}

std::string QtTextView::Text() const { return FromQt(edit_.toPlainText()); }

void QtTextView::SetText(const std::string& text) {
  const QString shown = ToQt(text);
  if (shown != edit_.toPlainText()) edit_.setPlainText(shown);
}

}  // namespace ferrowind::qt
