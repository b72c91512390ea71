#pragma once

#include <string>

#include "ferrowind/adapters/win32/controls/control_window.h"
#include "ferrowind/platform/toolkit/label.h"

namespace ferrowind::win32 {

class Win32Label final : public Win32Control<platform::Label> {
 public:
  Win32Label(ControlHost& host, std::string name, HWND parent);

  [[nodiscard]] std::string Text() const override { return text_; }
  void SetText(const std::string& text) override;
  void Announce() override;

 protected:
  [[nodiscard]] SIZE NeededSize() const override { return TextSize(text_); }

 private:
  std::string text_;
};

}  // namespace ferrowind::win32
