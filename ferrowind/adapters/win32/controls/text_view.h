#pragma once

#include <string>

#include "ferrowind/adapters/win32/controls/control_window.h"
#include "ferrowind/platform/toolkit/text_view.h"

namespace ferrowind::win32 {

class Win32TextView final : public Win32Control<platform::TextView> {
 public:
  Win32TextView(ControlHost& host, std::string name, HWND parent);

  [[nodiscard]] std::string Text() const override { return text_; }
  void SetText(const std::string& text) override;

  [[nodiscard]] bool CanHaveFocus() const override { return true; }
  [[nodiscard]] bool TakesText() const override { return true; }

  [[nodiscard]] bool FillsHeight() const override { return true; }

 protected:
  [[nodiscard]] SIZE NeededSize() const override;

 private:
  std::string text_;
};

}  // namespace ferrowind::win32
