#include "ferrowind/adapters/qt/controls/qt_text_view.h"

namespace ferrowind::qt {

QtTextView::QtTextView(QPlainTextEdit& edit) : QtControl(edit), edit_(edit) {
  edit_.setReadOnly(true);
  // With a cursor to select by key; what is read-only would have none otherwise.
  edit_.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  edit_.setTabChangesFocus(true);
  edit_.setUndoRedoEnabled(false);
}

std::string QtTextView::Text() const { return FromQt(edit_.toPlainText()); }

void QtTextView::SetText(const std::string& text) {
  const QString shown = ToQt(text);
  if (shown != edit_.toPlainText()) edit_.setPlainText(shown);
}

}  // namespace ferrowind::qt
