#pragma once

#include <cstddef>
#include <string>

#include "ferrowind/adapters/win32/controls/balloon.h"
#include "ferrowind/adapters/win32/controls/control_window.h"
#include "ferrowind/platform/toolkit/text_box.h"

namespace ferrowind::win32 {

class Win32TextBox final : public Win32Control<platform::TextBox> {
 public:
  Win32TextBox(ControlHost& host, std::string name, HWND parent);

  [[nodiscard]] std::string Text() const override { return text_; }
  void SetText(const std::string& text) override;
  void SetMaxLength(std::int32_t characters) override;
  void SelectAll() override;
  void SetPlaceholder(const std::string& text) override;
  [[nodiscard]] platform::Subscription OnChange(std::function<void()> handler) override {
    return changed_.Subscribe(std::move(handler));
  }
  [[nodiscard]] platform::Subscription OnEnter(std::function<void()> handler) override {
    takes_enter_ = true;
    return entered_.Subscribe(std::move(handler));
  }
  [[nodiscard]] platform::Subscription OnLostFocus(std::function<void()> handler) override {
    return lost_focus_.Subscribe(std::move(handler));
  }

  /// Has the text selected whenever the box gets the focus.
  void SelectOnFocus() { selects_on_focus_ = true; }
  /// As `platform::ControlDesign::longest_text`.
  void SetLongestText(std::size_t characters) { longest_text_ = characters; }

  void OnCommand(WORD notification, WORD id) override;
  [[nodiscard]] bool CanHaveFocus() const override { return true; }
  [[nodiscard]] bool TakesText() const override { return true; }
  [[nodiscard]] bool KeepsKey(WPARAM key) const override { return key == VK_RETURN && takes_enter_; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM w_param, LPARAM l_param) override;
  void OnFocusLost() override;
  [[nodiscard]] SIZE NeededSize() const override;

 private:
  void TakeTypedText();
  /// Has the box take as many characters of the operator as it may now.
  void LimitTyping();
  void TellLength();

  std::string text_;
  std::wstring placeholder_;
  std::int32_t max_length_ = 0;
  std::size_t longest_text_ = 0;
  Balloon length_note_{*this};
  bool takes_enter_ = false;
  bool selects_on_focus_ = false;
  platform::Signal<> changed_;
  platform::Signal<> entered_;
  platform::Signal<> lost_focus_;
};

}  // namespace ferrowind::win32
