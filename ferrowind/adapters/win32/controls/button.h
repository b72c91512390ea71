#pragma once

#include <string>

#include "ferrowind/adapters/win32/controls/control_window.h"
#include "ferrowind/platform/toolkit/button.h"

namespace ferrowind::win32 {

class Win32Button final : public Win32Control<platform::Button> {
 public:
  Win32Button(ControlHost& host, std::string name, HWND parent);

  [[nodiscard]] std::string Caption() const override { return caption_; }
  void SetCaption(const std::string& caption) override;
  void SetDescription(const std::string& description) override;
  [[nodiscard]] platform::Subscription OnClick(std::function<void()> handler) override {
    return clicked_.Subscribe(std::move(handler));
  }

  /// The letter that presses the button with Alt; 0 for none.
  [[nodiscard]] wchar_t Mnemonic() const { return mnemonic_; }
  void SetMnemonic(wchar_t mnemonic);
  /// Draws it as the one that Enter presses.
  void ShowDefault(bool is_default);
  /// As a click does, while it can be pressed.
  void Press();

  void OnCommand(WORD notification, WORD id) override;
  [[nodiscard]] bool CanHaveFocus() const override { return true; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM w_param, LPARAM l_param) override;
  [[nodiscard]] SIZE NeededSize() const override;

 private:
  /// In dark colours, which the platform's buttons do not have.
  void PaintDark() const;

  std::string caption_;
  wchar_t mnemonic_ = 0;
  bool is_default_ = false;
  platform::Signal<> clicked_;
};

}  // namespace ferrowind::win32
