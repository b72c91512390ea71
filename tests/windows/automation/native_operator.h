#pragma once

#include <functional>
#include <string>

#include <windows.h>

namespace ferrowind::testing {

/// An operator at the mouse and the keyboard of native windows, on a thread of their own, as people are. They
/// know windows by their titles, and controls by what stands on them. Whatever they look for and do not find
/// is a `std::runtime_error` that says what.
class NativeOperator {
 public:
  /// Windows are those of that thread.
  explicit NativeOperator(DWORD thread) : thread_(thread) {}

  /// Waits for a window of that title that takes input.
  [[nodiscard]] HWND Window(const std::wstring& title) const;
  void WaitUntilGone(HWND window) const;
  /// The visible control of that class in a window, with that text if one is given.
  [[nodiscard]] static HWND Control(HWND window, const std::wstring& of_class,
                                    const std::wstring& text = L"");

  void ClickNode(HWND tree, const std::wstring& text) const;
  void OpenNode(HWND tree, const std::wstring& text) const;
  void ClickTool(HWND tool_bar, const std::wstring& caption) const;
  void ClickButton(HWND window, const std::wstring& caption) const;
  /// Of the popup menu that is open, or opens in a moment; by the keyboard.
  void ChooseInMenu(const std::wstring& caption) const;
  /// Waits until that control has the keyboard focus.
  void WaitForFocus(HWND control) const;
  /// Waits for what must come.
  static void WaitFor(const std::string& what, const std::function<bool()>& is_there);

 private:
  DWORD thread_;
};

}  // namespace ferrowind::testing
