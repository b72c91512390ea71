#include "tests/windows/win32/file_dialog.h"

namespace ferrowind::contract {

HWND FrontDialog() {
  HWND found = nullptr;
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM result) -> BOOL {
        wchar_t name_of_class[16]{};
        GetClassNameW(window, name_of_class, 16);
        if (IsWindowVisible(window) == 0 || std::wstring(name_of_class) != L"#32770") return TRUE;
        *reinterpret_cast<HWND*>(result) = window;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&found));
  return found;
}

void TypeFileName(HWND question, const std::wstring& name) {
  EnumChildWindows(
      question,
      [](HWND child, LPARAM text) -> BOOL {
        wchar_t name_of_class[16]{};
        GetClassNameW(child, name_of_class, 16);
        if (std::wstring(name_of_class) != L"Edit") return TRUE;
        SetWindowTextW(child, reinterpret_cast<const wchar_t*>(text));
        return FALSE;
      },
      reinterpret_cast<LPARAM>(name.c_str()));
}

}  // namespace ferrowind::contract
