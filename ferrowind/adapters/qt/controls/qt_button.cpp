#include "ferrowind/adapters/qt/controls/qt_button.h"

#include "ferrowind/adapters/qt/controls/caption_text.h"
#include "ferrowind/adapters/qt/look/text_tip.h"

namespace ferrowind::qt {

QtButton::QtButton(QPushButton& button) : QtControl(button), button_(button), caption_(button.text()) {
  QObject::connect(&button_, &QPushButton::clicked, Context(), [this] { Raise(clicked_); });
}

std::string QtButton::Caption() const { return FromQt(caption_); }

void QtButton::SetCaption(const std::string& caption) {
  caption_ = ToQt(caption);
  button_.setText(MarkedCaption(caption_, mnemonic_));
  button_.setAccessibleName(caption_);
}

void QtButton::SetDescription(const std::string& description) {
  button_.setToolTip(PlainToolTip(ToQt(description)));
  button_.setAccessibleDescription(ToQt(description));
}

platform::Subscription QtButton::OnClick(std::function<void()> handler) {
  return clicked_.Subscribe(std::move(handler));
}

void QtButton::SetMnemonic(QChar mnemonic) {
  mnemonic_ = mnemonic;
  button_.setText(MarkedCaption(caption_, mnemonic_));
}

}  // namespace ferrowind::qt
