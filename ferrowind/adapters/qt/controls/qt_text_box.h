#pragma once

#include <QLineEdit>

#include "ferrowind/adapters/qt/controls/qt_control.h"
#include "ferrowind/platform/toolkit/text_box.h"

namespace ferrowind::qt {

/// The focus is not lost to the box's own menu, nor when the operator turns to another window.
class QtTextBox : public QtControl<platform::TextBox> {
 public:
  explicit QtTextBox(QLineEdit& line);
  ~QtTextBox() override;

  [[nodiscard]] std::string Text() const override;
  void SetText(const std::string& text) override;
  void SetMaxLength(std::int32_t characters) override;
  void SelectAll() override;
  [[nodiscard]] platform::Subscription OnChange(std::function<void()> handler) override;
  void SetPlaceholder(const std::string& text) override;
  [[nodiscard]] platform::Subscription OnEnter(std::function<void()> handler) override;
  [[nodiscard]] platform::Subscription OnLostFocus(std::function<void()> handler) override;

 private:
  class LineWatch;

  void LimitTyping(qsizetype length_now);

  QLineEdit& line_;
  std::int32_t max_length_ = 0;
  bool takes_enter_ = false;
  platform::Signal<> changed_;
  platform::Signal<> entered_;
  platform::Signal<> lost_focus_;
  std::unique_ptr<LineWatch> line_watch_;
};

}  // namespace ferrowind::qt
