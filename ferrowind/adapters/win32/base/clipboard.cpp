#include "ferrowind/adapters/win32/base/clipboard.h"

#include <cwchar>

namespace ferrowind::win32 {
namespace {

/// As other programs of the platform end their lines.
std::wstring WithPlatformLineEnds(const std::wstring& text) {
  std::wstring lines;
  for (const wchar_t letter : text) {
    if (letter == L'\n') lines += L'\r';
    lines += letter;
  }
  return lines;
}

}  // namespace

void PutOnClipboard(HWND owner, const std::wstring& text) {
  if (OpenClipboard(owner) == 0) return;
  EmptyClipboard();
  const std::wstring lines = WithPlatformLineEnds(text);
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (lines.size() + 1) * sizeof(wchar_t));
  if (memory != nullptr) {
    std::wmemcpy(static_cast<wchar_t*>(GlobalLock(memory)), lines.c_str(), lines.size() + 1);
    GlobalUnlock(memory);
    // From then on the memory is the clipboard's.
    if (SetClipboardData(CF_UNICODETEXT, memory) == nullptr) GlobalFree(memory);
  }
  CloseClipboard();
}

}  // namespace ferrowind::win32
