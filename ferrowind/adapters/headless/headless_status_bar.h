#pragma once

#include <string>

#include "ferrowind/adapters/headless/headless_control.h"
#include "ferrowind/platform/toolkit/status_bar.h"

namespace ferrowind::headless {

/// A status bar of one panel.
class HeadlessStatusBar : public HeadlessControl<platform::StatusBar> {
 public:
  using HeadlessControl::HeadlessControl;

  [[nodiscard]] std::string PanelText(std::int32_t panel) const override;
  void SetPanelText(std::int32_t panel, const std::string& text) override;

 private:
  std::string text_;
};

}  // namespace ferrowind::headless
