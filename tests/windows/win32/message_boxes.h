#pragma once

#include <string>
#include <vector>

#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::contract {

/// The message box that this thread shows; null for none.
[[nodiscard]] inline HWND OpenMessageBox() {
  HWND box = nullptr;
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM found) -> BOOL {
        wchar_t name_of_class[16]{};
        GetClassNameW(window, name_of_class, 16);
        if (IsWindowVisible(window) == 0 || std::wstring(name_of_class) != L"#32770") return TRUE;
        *reinterpret_cast<HWND*>(found) = window;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&box));
  return box;
}

/// What a message box says.
[[nodiscard]] inline std::string TextOfMessageBox(HWND box) {
  constexpr int kText = 0xFFFF;
  std::wstring text(4096, L'\0');
  text.resize(
      static_cast<std::size_t>(GetDlgItemTextW(box, kText, text.data(), static_cast<int>(text.size()))));
  return win32::FromWide(text);
}

/// An operator who presses "OK" in each message box of this thread as soon as it is there.
class AnsweringOperator {
 public:
  AnsweringOperator() {
    latest = this;
    constexpr UINT kMilliseconds = 5;
    timer_ = SetTimer(nullptr, 0, kMilliseconds, [](HWND, UINT, UINT_PTR, DWORD) { latest->Answer(); });
  }
  ~AnsweringOperator() {
    KillTimer(nullptr, timer_);
    latest = nullptr;
  }
  AnsweringOperator(const AnsweringOperator&) = delete;
  AnsweringOperator& operator=(const AnsweringOperator&) = delete;

  /// In order.
  [[nodiscard]] const std::vector<std::string>& AnsweredTexts() const { return answered_; }

 private:
  void Answer() {
    const HWND box = OpenMessageBox();
    if (box == nullptr || box == answered_box_) return;
    answered_box_ = box;
    answered_.push_back(TextOfMessageBox(box));
    PostMessageW(box, WM_COMMAND, IDOK, 0);
  }

  static inline thread_local AnsweringOperator* latest = nullptr;

  UINT_PTR timer_ = 0;
  /// One that was answered is there until its loop has gone on.
  HWND answered_box_ = nullptr;
  std::vector<std::string> answered_;
};

}  // namespace ferrowind::contract
