#pragma once

#include <QPushButton>

#include "ferrowind/adapters/qt/controls/captioned.h"
#include "ferrowind/adapters/qt/controls/qt_control.h"
#include "ferrowind/platform/toolkit/button.h"

namespace ferrowind::qt {

class QtButton : public QtControl<platform::Button>, public Captioned {
 public:
  explicit QtButton(QPushButton& button);

  [[nodiscard]] std::string Caption() const override;
  void SetCaption(const std::string& caption) override;
  void SetDescription(const std::string& description) override;
  [[nodiscard]] platform::Subscription OnClick(std::function<void()> handler) override;

  [[nodiscard]] bool TakesMnemonic() const override { return true; }
  [[nodiscard]] QString PlainCaption() const override { return caption_; }
  void SetMnemonic(QChar mnemonic) override;

 private:
  QPushButton& button_;
  QString caption_;
  QChar mnemonic_;
  platform::Signal<> clicked_;
};

}  // namespace ferrowind::qt
