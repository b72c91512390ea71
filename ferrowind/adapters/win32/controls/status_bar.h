#pragma once

#include <string>

#include "ferrowind/adapters/win32/controls/control_window.h"
#include "ferrowind/platform/toolkit/status_bar.h"

namespace ferrowind::win32 {

/// A bar of one panel.
class Win32StatusBar final : public Win32Control<platform::StatusBar> {
 public:
  Win32StatusBar(ControlHost& host, std::string name, HWND parent);

  [[nodiscard]] std::string PanelText(std::int32_t panel) const override;
  void SetPanelText(std::int32_t panel, const std::string& text) override;

  void UseColors() override;
  void OnDrawItem(const DRAWITEMSTRUCT& item) override;

 protected:
  [[nodiscard]] SIZE NeededSize() const override;

 private:
  void ShowText();

  std::string text_;
};

}  // namespace ferrowind::win32
