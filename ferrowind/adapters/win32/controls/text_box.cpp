#include "ferrowind/adapters/win32/controls/text_box.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "ferrowind/adapters/win32/base/twips.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/controls/window_text.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {
namespace {

/// A character beyond the 16-bit ones takes two places in the platform's texts.
bool IsSecondHalf(wchar_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

std::ptrdiff_t SecondHalves(const std::wstring& text) {
  return std::count_if(text.begin(), text.end(), IsSecondHalf);
}

std::wstring Trimmed(const std::wstring& text) {
  constexpr const wchar_t* kBlanks = L" \t";
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::wstring::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

}  // namespace

Win32TextBox::Win32TextBox(ControlHost& host, std::string name, HWND parent)
    : Win32Control(host, std::move(name),
                   {.window_class = WC_EDITW,
                    .style = ES_AUTOHSCROLL | ES_LEFT | WS_TABSTOP,
                    .extended_style = WS_EX_CLIENTEDGE,
                    .parent = parent}) {
  LimitTyping();
}

void Win32TextBox::SetText(const std::string& text) {
  if (text == text_) return;
  // Taken first, so that what the platform tells of its own text finds nothing new.
  text_ = text;
  SetWindowTextW(Handle(), ToWide(text).c_str());
  LimitTyping();
  TellLength();
  RaiseEvent(changed_);
}

void Win32TextBox::SetMaxLength(std::int32_t characters) {
  if (characters < 0) throw platform::InvalidArgument();
  max_length_ = characters;
  LimitTyping();
}

void Win32TextBox::SelectAll() { SendMessageW(Handle(), EM_SETSEL, 0, -1); }

void Win32TextBox::SetPlaceholder(const std::string& text) {
  placeholder_ = ToWide(text);
  SendMessageW(Handle(), EM_SETCUEBANNER, FALSE, reinterpret_cast<LPARAM>(placeholder_.c_str()));
}

void Win32TextBox::OnCommand(WORD notification, WORD /*id*/) {
  if (notification == EN_CHANGE) TakeTypedText();
}

void Win32TextBox::TakeTypedText() {
  std::string typed = FromWide(WindowText(Handle()));
  if (typed == text_) return;
  text_ = std::move(typed);
  LimitTyping();
  TellLength();
  RaiseEvent(changed_);
}

void Win32TextBox::LimitTyping() {
  // The limit binds the operator alone: a longer text of the program stays.
  const std::wstring text = ToWide(text_);
  const auto length = static_cast<std::ptrdiff_t>(text.size());
  const auto limit = max_length_ == 0 ? std::numeric_limits<int>::max() - 1
                                      : std::max(max_length_ + SecondHalves(text), length);
  SendMessageW(Handle(), EM_SETLIMITTEXT, static_cast<WPARAM>(limit), 0);
}

void Win32TextBox::TellLength() {
  if (longest_text_ == 0) return;
  const std::wstring text = Trimmed(ToWide(text_));
  const auto length = text.size() - static_cast<std::size_t>(SecondHalves(text));
  if (length <= longest_text_) {
    length_note_.Hide();
    return;
  }
  length_note_.Show(std::to_wstring(length) + L" / " + std::to_wstring(longest_text_));
}

void Win32TextBox::OnFocusLost() {
  length_note_.Hide();
  RaiseEvent(lost_focus_);
}

LRESULT Win32TextBox::OnMessage(UINT message, WPARAM w_param, LPARAM l_param) {
  const bool is_enter = takes_enter_ && w_param == VK_RETURN;
  // The character of the key would sound the signal.
  if (message == WM_CHAR && is_enter) return 0;
  if (message == WM_KEYDOWN && is_enter && GetKeyState(VK_CONTROL) >= 0 && GetKeyState(VK_SHIFT) >= 0) {
    RaiseEvent(entered_);
    return 0;
  }
  const LRESULT result = ControlWindow::OnMessage(message, w_param, l_param);
  if (message == WM_SETFOCUS && selects_on_focus_) SelectAll();
  return result;
}

SIZE Win32TextBox::NeededSize() const {
  constexpr int kWidth = 120;
  constexpr int kAroundText = 8;
  return {Scaled(kWidth, DotsPerInch()), TextSize("X").cy + Scaled(kAroundText, DotsPerInch())};
}

}  // namespace ferrowind::win32
