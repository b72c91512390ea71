#include "ferrowind/adapters/qt/controls/qt_label.h"

#include <QAccessible>

#include "ferrowind/adapters/qt/controls/caption_text.h"

namespace ferrowind::qt {

QtLabel::QtLabel(QLabel& label) : QtControl(label), label_(label), text_(label.text()) {
  label_.setTextFormat(Qt::PlainText);
}

std::string QtLabel::Text() const { return FromQt(text_); }

void QtLabel::SetText(const std::string& text) {
  text_ = ToQt(text);
  ShowText();
}

void QtLabel::Announce() {
  QAccessibleEvent alert(&label_, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void QtLabel::SetMnemonic(QChar mnemonic) {
  mnemonic_ = mnemonic;
  ShowText();
}

void QtLabel::ShowText() {
  // Only a label with a buddy reads ampersands as marks.
  label_.setText(TakesMnemonic() ? MarkedCaption(text_, mnemonic_) : text_);
}

}  // namespace ferrowind::qt
