#include "ferrowind/adapters/win32/forms/form_keys.h"

#include <algorithm>
#include <cwctype>
#include <string>
#include <utility>

#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/controls/button.h"
#include "ferrowind/adapters/win32/controls/marked_caption.h"
#include "ferrowind/adapters/win32/controls/shortcut.h"
#include "ferrowind/adapters/win32/controls/text_box.h"
#include "ferrowind/adapters/win32/controls/tool_bar.h"

namespace ferrowind::win32 {
namespace {

constexpr wchar_t kFirstPrinted = L' ';

bool CanHaveFocusNow(const ControlWindow& control) { return control.CanHaveFocus() && control.IsUsable(); }

}  // namespace

FormKeys::FormKeys(std::function<void()> close) : close_(std::move(close)) {}

void FormKeys::Add(const platform::ControlDesign& design, ControlWindow& control) {
  controls_.push_back(&control);
  if (auto* button = dynamic_cast<Win32Button*>(&control)) {
    buttons_.push_back(button);
    if (design.is_default_button) default_button_ = button;
    if (design.is_cancel_button) cancel_button_ = button;
  }
  if (auto* bar = dynamic_cast<Win32ToolBar*>(&control)) tool_bars_.push_back(bar);
  auto* box = dynamic_cast<Win32TextBox*>(&control);
  if (box != nullptr && design.takes_typing) {
    typing_target_ = box;
    box->SelectOnFocus();
  }
}

void FormKeys::Settle(const platform::FormDesign& design) {
  closes_by_escape_ = design.closes_by_escape;
  const bool is_dialog = design.border != platform::FormBorder::kSizable;
  if (default_button_ == nullptr && is_dialog && !buttons_.empty()) default_button_ = buttons_.front();
  if (default_button_ != nullptr) default_button_->ShowDefault(true);
  GiveAccessKeys();
}

void FormKeys::GiveAccessKeys() const {
  std::wstring taken;
  for (Win32Button* button : buttons_) {
    const std::wstring caption = ToWide(button->Caption());
    // Behind the letters of its kind the name says in English what the button is for.
    const std::string& name = button->ControlName();
    const auto capital = std::find_if(name.begin(), name.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
    for (const wchar_t letter : HasForeignWords(caption) ? std::wstring(capital, name.end()) : caption) {
      const auto key = static_cast<wchar_t>(std::towlower(letter));
      if (!CanBeMnemonic(key) || taken.find(key) != std::wstring::npos) continue;
      taken += key;
      button->SetMnemonic(key);
      break;
    }
  }
}

bool FormKeys::Takes(ControlWindow* focused, UINT message, WPARAM key, LPARAM state) {
  if (message == WM_CHAR || message == WM_SYSCHAR) {
    if (std::exchange(swallows_character_, false)) return true;
    return message == WM_CHAR ? TakesCharacter(focused, key, state) : PressAccessKey(key);
  }
  swallows_character_ = false;
  const bool takes = TakesDown(focused, key);
  // Set afterwards, since handlers may run the message loop.
  swallows_character_ = takes && MapVirtualKeyW(static_cast<UINT>(key), MAPVK_VK_TO_CHAR) != 0;
  return takes;
}

bool FormKeys::TakesDown(ControlWindow* focused, WPARAM key) {
  const KeyPress press = PressOf(key);
  const bool is_text = focused != nullptr && focused->TakesText() && IsKeyOfText(press);
  if (!is_text && std::any_of(tool_bars_.begin(), tool_bars_.end(),
                              [&](Win32ToolBar* bar) { return bar->PressShortcut(press); })) {
    return true;
  }
  if (press.has_control || press.has_alt) return false;
  if (focused != nullptr && focused->KeepsKey(key)) return false;
  switch (key) {
    case VK_TAB:
      MoveOn(focused, press.has_shift);
      return true;
    case VK_RETURN:
      return PressEnter(focused);
    case VK_ESCAPE:
      return PressEscape();
    default:
      return false;
  }
}

bool FormKeys::PressEnter(ControlWindow* focused) const {
  auto* button = dynamic_cast<Win32Button*>(focused);
  if (button == nullptr) button = default_button_;
  if (button != nullptr) button->Press();
  // In a box of one line the key would only sound the signal.
  return button != nullptr || dynamic_cast<Win32TextBox*>(focused) != nullptr;
}

bool FormKeys::PressEscape() const {
  if (cancel_button_ != nullptr && cancel_button_->IsUsable()) {
    cancel_button_->Press();
    return true;
  }
  if (closes_by_escape_) close_();
  return closes_by_escape_;
}

bool FormKeys::PressAccessKey(WPARAM character) const {
  const auto key = std::towlower(static_cast<wint_t>(character));
  const auto found = std::find_if(buttons_.begin(), buttons_.end(), [&](const Win32Button* button) {
    return button->Mnemonic() != 0 && static_cast<wint_t>(button->Mnemonic()) == key && button->IsUsable();
  });
  if (found == buttons_.end()) return false;
  (*found)->TakeFocus();
  (*found)->Press();
  return true;
}

bool FormKeys::TakesCharacter(ControlWindow* focused, WPARAM character, LPARAM state) const {
  const bool is_text_elsewhere = focused != nullptr && focused->TakesText();
  if (typing_target_ == nullptr || is_text_elsewhere || !typing_target_->IsUsable()) return false;
  // The space bar presses the focused button.
  if (character <= kFirstPrinted) return false;
  typing_target_->TakeFocus();
  SendMessageW(typing_target_->Handle(), WM_CHAR, character, state);
  return true;
}

void FormKeys::MoveOn(const ControlWindow* focused, bool backwards) const {
  const std::size_t count = controls_.size();
  if (count == 0) return;
  const auto found = std::find(controls_.begin(), controls_.end(), focused);
  std::size_t place = found == controls_.end() ? (backwards ? 0 : count - 1)
                                               : static_cast<std::size_t>(found - controls_.begin());
  for (std::size_t i = 0; i < count; ++i) {
    place = (place + (backwards ? count - 1 : 1)) % count;
    if (!CanHaveFocusNow(*controls_[place])) continue;
    controls_[place]->TakeFocus();
    return;
  }
}

void FormKeys::PlaceMenus(std::optional<POINT> screen) const {
  for (Win32ToolBar* bar : tool_bars_) bar->PlaceMenus(screen);
}

ControlWindow* FormKeys::First() const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [](const ControlWindow* control) { return CanHaveFocusNow(*control); });
  return found == controls_.end() ? nullptr : *found;
}

}  // namespace ferrowind::win32
