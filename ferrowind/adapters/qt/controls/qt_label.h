#pragma once

#include <QLabel>

#include "ferrowind/adapters/qt/controls/captioned.h"
#include "ferrowind/adapters/qt/controls/qt_control.h"
#include "ferrowind/platform/toolkit/label.h"

namespace ferrowind::qt {

/// A label that has a buddy in the layout takes an access key for it.
class QtLabel : public QtControl<platform::Label>, public Captioned {
 public:
  explicit QtLabel(QLabel& label);

  [[nodiscard]] std::string Text() const override;
  void SetText(const std::string& text) override;
  void Announce() override;

  [[nodiscard]] bool TakesMnemonic() const override { return label_.buddy() != nullptr; }
  [[nodiscard]] QString PlainCaption() const override { return text_; }
  void SetMnemonic(QChar mnemonic) override;

 private:
  void ShowText();

  QLabel& label_;
  QString text_;
  QChar mnemonic_;
};

}  // namespace ferrowind::qt
