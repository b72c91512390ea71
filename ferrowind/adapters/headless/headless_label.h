#pragma once

#include <string>
#include <utility>

#include "ferrowind/adapters/headless/headless_control.h"
#include "ferrowind/platform/toolkit/label.h"

namespace ferrowind::headless {

class HeadlessLabel : public HeadlessControl<platform::Label> {
 public:
  HeadlessLabel(ControlHost& host, std::string name, std::string text)
      : HeadlessControl(host, std::move(name)), text_(std::move(text)) {}

  [[nodiscard]] std::string Text() const override { return text_; }
  void SetText(const std::string& text) override {
    core_.Record("SetText", {text});
    text_ = text;
  }
  void Announce() override { core_.Record("Announce", {text_}); }

 private:
  std::string text_;
};

}  // namespace ferrowind::headless
