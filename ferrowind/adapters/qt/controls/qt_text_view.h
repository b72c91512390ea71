#pragma once

#include <QPlainTextEdit>

#include "ferrowind/adapters/qt/controls/qt_control.h"
#include "ferrowind/platform/toolkit/text_view.h"

namespace ferrowind::qt {

class QtTextView : public QtControl<platform::TextView> {
 public:
  explicit QtTextView(QPlainTextEdit& edit);

  [[nodiscard]] std::string Text() const override;
  void SetText(const std::string& text) override;

 private:
  QPlainTextEdit& edit_;
};

}  // namespace ferrowind::qt
