#pragma once

#include <string>
#include <utility>

#include "ferrowind/adapters/headless/headless_control.h"
#include "ferrowind/platform/toolkit/button.h"

namespace ferrowind::headless {

class HeadlessButton : public HeadlessControl<platform::Button> {
 public:
  HeadlessButton(ControlHost& host, std::string name, std::string caption)
      : HeadlessControl(host, std::move(name)), caption_(std::move(caption)) {}

  [[nodiscard]] std::string Caption() const override { return caption_; }
  void SetCaption(const std::string& caption) override {
    core_.Record("SetCaption", {caption});
    caption_ = caption;
  }
  void SetDescription(const std::string& description) override {
    core_.Record("SetDescription", {description});
    description_ = description;
  }
  [[nodiscard]] platform::Subscription OnClick(std::function<void()> handler) override {
    return clicked_.Subscribe(std::move(handler));
  }

  [[nodiscard]] const std::string& Description() const { return description_; }

  /// The operator clicks the button, which takes the focus.
  void Click() {
    const auto keep = core_.BeginAction("Click");
    core_.TakeFocus();
    clicked_.Emit();
  }
  /// The operator presses the button by the form's Enter or Escape key, which leaves the focus where it is.
  void Press() {
    const auto keep = core_.BeginAction("Press");
    clicked_.Emit();
  }

 private:
  std::string caption_;
  std::string description_;
  platform::Signal<> clicked_;
};

}  // namespace ferrowind::headless
